#pragma once

#include <string>

namespace mapc {

/// A map or save as readable lines, one a record.
/// @throws std::string "file corrupted" with the place if the text is no map
std::string dumpMap(const std::string& text);

} // namespace mapc
