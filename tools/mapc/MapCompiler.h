#pragma once

#include "MapChecker.h"

#include <string>
#include <vector>

namespace mapc {

/// What the tool works with.
struct MapOptions {
    TextureSizes textures;
    std::string soundDirectory; ///< Empty: sounds are not looked for.
    std::string musicDirectory; ///< Empty: music is not looked for.
    CommandTest isCommand;      ///< The named commands of the game.
};

/// The text of a level from the text of a Tiled map. All checks run, those of textures, sounds
/// and music where their directories are known; with any problem the text is empty.
/// @throws std::string if the source is no Tiled map
std::string compileMap(const std::string& source, MapOptions& options,
                       std::vector<Problem>& problems);

/// "FILE: object 12 "NAME": reason".
std::string describe(const Problem& problem, const std::string& file);

} // namespace mapc
