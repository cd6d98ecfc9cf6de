#pragma once

#include "Level.h"

#include <vector>

namespace mapc {

/// Turns a map of the editor into a level. What cannot be built is left out and told in `problems`.
Level buildLevel(const TiledMap& map, std::vector<Problem>& problems);

} // namespace mapc
