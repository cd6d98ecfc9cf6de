#pragma once

#include "Signal.h"

/// What a recipe is asked for: one channel of one file. A stereo file is made by two takes that
/// differ in nothing but their side.
struct Take {
    float seconds;      // how long the file will be
    std::uint32_t seed; // chooses one of the sounds that the recipe can make
    float side;         // the ear: -1 left, 1 right, 0 the only one

    /// Chance that falls alike on both sides: what happens, when and how.
    Chance chance(std::uint32_t n = 0) const { return Chance(seed * 131 + n); }

    /// Chance that each side has for itself, for noise that should surround the listener.
    Chance around(std::uint32_t n = 0) const {
        return Chance(seed * 131 + n + (side > 0 ? 0x20000U : 0x10000U));
    }

    /// How strong something is on this side that stands at `place`, -1 left to 1 right.
    float heardFrom(float place) const { return 1 + 0.6f * place * side; }
};
