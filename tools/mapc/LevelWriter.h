#pragma once

#include "Level.h"
#include "TextureSizes.h"

#include <string>

namespace mapc {

/// The text of the level in the engine's map format, not yet packed.
std::string writeLevel(const Level& level, TextureSizes& textures);

/// The stored form of one chain, as the engine saves it.
std::string storeScript(const std::string& script);

} // namespace mapc
