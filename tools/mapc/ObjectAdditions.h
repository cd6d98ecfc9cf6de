#pragma once

#include "Level.h"

namespace mapc {

/// Reads the properties that give an object behaviour: scripts, hit points, damage, force, dialog.
/// Where layers say them for all their objects, those that need a body pass by objects without one.
/// @throws std::string for a value that does not fit, and for words on an object without a body
void readAdditions(const Properties& properties, LevelObject& object);

} // namespace mapc
