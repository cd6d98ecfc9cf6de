#pragma once

#include "Level.h"
#include "ScriptCheck.h"
#include "TextureSizes.h"

#include <string>
#include <vector>

namespace mapc {

/// What is wrong with a level by itself: scripts that cannot work, bodies that stand in one
/// another, walls that are too thin, no start, depths that do not fit.
void checkLevel(const Level& level, const CommandTest& isCommand, std::vector<Problem>& problems);

/// Textures that are not in the directory of built assets.
void checkTextures(const Level& level, const TextureSizes& textures,
                   std::vector<Problem>& problems);

/// Music that is not in the directory.
void checkMusic(const Level& level, const std::string& directory, std::vector<Problem>& problems);

} // namespace mapc
