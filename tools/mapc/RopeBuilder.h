#pragma once

#include "Level.h"

namespace mapc {

class Placement;
struct ObjectClass;

/// Adds the links and hinges of a rope to a level whose other bodies are built. The rope is a line,
/// or a rectangle that it runs through lengthwise. It is tied at either end to the body that the
/// end lies in; without one it begins in mid air, tied to the world, and its end swings freely. The
/// first link's first joint is what the rope hangs on, so that scripts can cut it there.
/// @throws std::string for a drawing or a value that does not fit
void addRope(const TiledObject& source, const ObjectClass& objectClass, const Placement& placement,
             Level& level);

} // namespace mapc
