#pragma once

#include "Level.h"

#include <vector>

namespace mapc {

/// Loose bodies that stand in a wall or in one another, which the solver would throw apart in the
/// first step, and a start that lies in a wall.
void checkOverlaps(const Level& level, std::vector<Problem>& problems);

} // namespace mapc
