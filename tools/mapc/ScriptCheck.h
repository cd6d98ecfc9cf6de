#pragma once

#include "Level.h"

#include <functional>
#include <string>
#include <vector>

namespace mapc {

/// Whether a word of a script is a named command of the game.
using CommandTest = std::function<bool(const std::string&)>;

/// What the game would pass over in silence: unknown words, arguments that are missing or no
/// numbers, names that nothing answers to, words that nothing reaches, and words that work on a
/// Slider alone where there is none.
void checkScripts(const Level& level, const CommandTest& isCommand, std::vector<Problem>& problems);

/// Sounds of scripts that are not in the directory.
void checkSounds(const Level& level, const std::string& directory, std::vector<Problem>& problems);

} // namespace mapc
