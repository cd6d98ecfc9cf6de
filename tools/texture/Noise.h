#pragma once

#include <cstdint>

/// How many lattice cells lie across a picture, in each direction. Noise wraps after that many
/// cells, so that every picture painted with it tiles.
struct Lattice {
    int x, y;
};

/// The nearest of the scattered points of cell noise.
struct NearestCell {
    float nearest; // distance to the nearest point, in cells
    float second;  // distance to the second nearest
    float random;  // 0 to 1, the same all over one point's territory
    float dx, dy;  // from the nearest point to the place asked for, in cells
};

/// Seeded noise on the unit square: all coordinates run from 0 to 1 across the picture, and the
/// square's opposite edges meet. The same seed gives the same values on every machine.
class Noise {
public:
    explicit Noise(std::uint32_t value) : seed(value) {}

    /// A random number of 0 to 1 that belongs to a pair of integers.
    float at(int x, int y) const;

    /// Smooth noise, 0 to 1.
    float value(float u, float v, Lattice lattice) const;

    /// Gradient noise, about -1 to 1, rounder than `value`.
    float gradient(float u, float v, Lattice lattice) const;

    /// Octaves of gradient noise, each twice as fine and half as strong, about 0 to 1.
    float clouds(float u, float v, Lattice lattice, int octaves) const;

    /// Sharp crests: octaves of folded gradient noise, 0 to 1.
    float ridges(float u, float v, Lattice lattice, int octaves) const;

    NearestCell cells(float u, float v, Lattice lattice) const;

private:
    float slope(int x, int y, float dx, float dy) const;

    std::uint32_t seed;
};
