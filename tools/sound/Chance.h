#pragma once

#include <cstdint>

/// Seeded random numbers, the same on every machine.
class Chance {
public:
    explicit Chance(std::uint32_t seed)
        : state(seed * 0x9E3779B97F4A7C15ULL + 0x632BE59BD9B4E019ULL) {}

    /// 0 to 1.
    float unit() {
        state += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = state;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return static_cast<float>((z ^ (z >> 31)) >> 40) * 0x1p-24f;
    }

    float between(float from, float to) { return from + (to - from) * unit(); }

    /// -1 to 1.
    float swing() { return between(-1, 1); }

private:
    std::uint64_t state;
};
