#pragma once

#include <cstdint>

/// State of the game's one random generator. Set to 1 at start, so that every run draws the same.
inline std::uint32_t randomState = 1;

/// One draw, 0 to 32767: a linear congruential step (ANSI C's example generator), bits 16 to 30.
inline int drawRandom() {
    randomState = randomState * 1103515245U + 12345U;
    return static_cast<int>((randomState >> 16U) & 0x7FFFU);
}

/// The draw that follows from a seed, 0 to 32767, without touching the state. A seed of 0 is no
/// seed: it gives a plain draw.
inline int drawRandom(std::uint32_t seed) {
    if (seed == 0) {
        return drawRandom();
    }
    return static_cast<int>(((seed * 1103515245U + 12345U) >> 16U) & 0x7FFFU);
}

/// One draw as a number from 0 to 1, both included.
inline float drawUnit() {
    return static_cast<float>(drawRandom() / 32767.0);
}
