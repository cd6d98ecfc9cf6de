#pragma once

#include "Signal.h"

#include <vector>

/// One way in which a struck body rings.
struct Mode {
    float hz, seconds, gain; // seconds until it has faded by 60 decibels
};
using Modes = std::vector<Mode>;

/// What is struck. `hz` is the lowest mode, `seconds` how long that one rings; the upper modes are
/// shorter the more `damping` there is (0 none, 1 as strings, 2 as wood).
namespace material {
Modes bar(float hz, float seconds, float damping);
Modes membrane(float hz, float seconds, float damping);
Modes bell(float hz, float seconds);
/// A plate, box or board: many modes whose places are left to chance.
Modes plate(float hz, float seconds, float damping, int count, Chance chance);
} // namespace material

/// The sound of one blow. `hardness` is the highest frequency in hertz that it wakes well: a fist
/// 200, wood 1500, steel 8000. Each blow wakes the modes a little differently.
Signal strike(const Modes& modes, float hardness, Chance chance);
