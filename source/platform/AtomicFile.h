#pragma once

#include <string>
#include <string_view>

namespace platform {

enum class ReplaceResult {
    replaced,
    notOpened, ///< Nothing at this path can be written.
    failed,    ///< The transfer broke off; `errno` tells why.
};

/// Puts a file with these bytes at the path. They are written to a file beside it and are safe on
/// the disk before that takes the name, so that whatever happens there is an old file or a new one,
/// never half of one.
ReplaceResult replaceFile(const std::string& path, std::string_view bytes);

} // namespace platform
