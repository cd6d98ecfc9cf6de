#include "Noise.h"

#include <cmath>

namespace {

constexpr float tau = 6.2831853f;

int wrap(int i, int period) {
    int r = i % period;
    return r < 0 ? r + period : r;
}

float ease(float t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

float between(float a, float b, float t) {
    return a + (b - a) * t;
}

// The lattice cell that a coordinate falls in and the place inside it.
struct Place {
    int low, high;
    float part;
};

Place place(float t, int period) {
    float x = t * static_cast<float>(period);
    float low = std::floor(x);
    int cell = static_cast<int>(low);
    return {wrap(cell, period), wrap(cell + 1, period), x - low};
}

} // namespace

float Noise::at(int x, int y) const {
    std::uint32_t h = seed * 0x9E3779B1u + static_cast<std::uint32_t>(x) * 0x85EBCA77u +
                      static_cast<std::uint32_t>(y) * 0xC2B2AE3Du;
    h = (h ^ (h >> 15)) * 0x2C1B3C6Du;
    h = (h ^ (h >> 12)) * 0x297A2D39u;
    h ^= h >> 15;
    return static_cast<float>(h >> 8) / 16777215.0f;
}

float Noise::value(float u, float v, Lattice lattice) const {
    Place x = place(u, lattice.x), y = place(v, lattice.y);
    float t = ease(x.part);
    return between(between(at(x.low, y.low), at(x.high, y.low), t),
                   between(at(x.low, y.high), at(x.high, y.high), t), ease(y.part));
}

float Noise::slope(int x, int y, float dx, float dy) const {
    float angle = at(x, y) * tau;
    return std::cos(angle) * dx + std::sin(angle) * dy;
}

float Noise::gradient(float u, float v, Lattice lattice) const {
    Place x = place(u, lattice.x), y = place(v, lattice.y);
    float t = ease(x.part);
    float low =
        between(slope(x.low, y.low, x.part, y.part), slope(x.high, y.low, x.part - 1, y.part), t);
    float high = between(slope(x.low, y.high, x.part, y.part - 1),
                         slope(x.high, y.high, x.part - 1, y.part - 1), t);
    return 1.4f * between(low, high, ease(y.part));
}

float Noise::clouds(float u, float v, Lattice lattice, int octaves) const {
    float sum = 0, strength = 0.5f;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * Noise(seed + static_cast<std::uint32_t>(i)).gradient(u, v, lattice);
        lattice = {lattice.x * 2, lattice.y * 2};
        strength *= 0.5f;
    }
    return 0.5f + 0.75f * sum;
}

float Noise::ridges(float u, float v, Lattice lattice, int octaves) const {
    float sum = 0, strength = 0.5f;
    for (int i = 0; i < octaves; ++i) {
        float fold =
            1 - std::abs(Noise(seed + static_cast<std::uint32_t>(i)).gradient(u, v, lattice));
        sum += strength * fold * fold;
        lattice = {lattice.x * 2, lattice.y * 2};
        strength *= 0.5f;
    }
    return sum;
}

NearestCell Noise::cells(float u, float v, Lattice lattice) const {
    float x = u * static_cast<float>(lattice.x), y = v * static_cast<float>(lattice.y);
    int cellX = static_cast<int>(std::floor(x)), cellY = static_cast<int>(std::floor(y));
    NearestCell found{9, 9, 0, 0, 0};
    for (int j = cellY - 1; j <= cellY + 1; ++j) {
        for (int i = cellX - 1; i <= cellX + 1; ++i) {
            int px = wrap(i, lattice.x), py = wrap(j, lattice.y);
            float dx = x - (static_cast<float>(i) + at(px, py));
            float dy = y - (static_cast<float>(j) + at(px + 7919, py));
            float distance = std::sqrt(dx * dx + dy * dy);
            if (distance < found.nearest) {
                found = {distance, found.nearest, at(px, py + 7919), dx, dy};
            } else if (distance < found.second) {
                found.second = distance;
            }
        }
    }
    return found;
}
