#pragma once

#include <algorithm>
#include <cmath>

/// Plane shapes as signed distances: below 0 inside, above 0 outside, in the caller's unit.
namespace shape {

inline float mix(float a, float b, float t) {
    return a + (b - a) * t;
}

inline float clamp01(float t) {
    return std::clamp(t, 0.0f, 1.0f);
}

/// 0 below `from`, 1 above `to`, smooth between; `from` may be the larger one.
inline float ramp(float from, float to, float t) {
    t = clamp01((t - from) / (to - from));
    return t * t * (3 - 2 * t);
}

inline float disc(float x, float y, float radius) {
    return std::hypot(x, y) - radius;
}

/// Close to a true distance near the edge, which is where it counts.
inline float ellipse(float x, float y, float rx, float ry) {
    float k = std::hypot(x / rx, y / ry);
    float slope = std::hypot(x / (rx * rx), y / (ry * ry));
    return slope > 0 ? k * (k - 1) / slope : -std::min(rx, ry);
}

inline float box(float x, float y, float halfWidth, float halfHeight, float corner = 0) {
    float dx = std::abs(x) - halfWidth + corner, dy = std::abs(y) - halfHeight + corner;
    return std::hypot(std::max(dx, 0.0f), std::max(dy, 0.0f)) + std::min(std::max(dx, dy), 0.0f) -
           corner;
}

/// A line from a to b with round ends, as thick as `radius` says at either end.
inline float capsule(float x, float y, float ax, float ay, float bx, float by, float radiusA,
                     float radiusB) {
    float dx = bx - ax, dy = by - ay;
    float t = clamp01(((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy));
    return std::hypot(x - ax - dx * t, y - ay - dy * t) - mix(radiusA, radiusB, t);
}

/// The union of two shapes with a fillet of the given size where they meet.
inline float blend(float a, float b, float fillet) {
    float h = clamp01(0.5f + 0.5f * (b - a) / fillet);
    return mix(b, a, h) - fillet * h * (1 - h);
}

/// How much of a pixel lies inside, for a distance in pixels.
inline float coverage(float distance) {
    return clamp01(0.5f - distance);
}

} // namespace shape
