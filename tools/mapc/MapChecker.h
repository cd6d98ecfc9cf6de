#pragma once

#include "Level.h"
#include "TextureSizes.h"

#include <functional>
#include <string>
#include <vector>

namespace mapc {

/// Whether a word of a script is a named command of the game.
using CommandTest = std::function<bool(const std::string&)>;

/// What is wrong with a level by itself: scripts that say unknown words or speak of nobody, bodies
/// that stand in one another, walls that are too thin, no start, depths that do not fit.
void checkLevel(const Level& level, const CommandTest& isCommand, std::vector<Problem>& problems);

/// Textures that are not in the directory of built assets.
void checkTextures(const Level& level, const TextureSizes& textures,
                   std::vector<Problem>& problems);

/// Sounds of scripts that are not in the directory.
void checkSounds(const Level& level, const std::string& directory, std::vector<Problem>& problems);

} // namespace mapc
