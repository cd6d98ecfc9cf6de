// Small soft pictures that are tinted when drawn.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::mix;
using shape::ramp;

namespace {

// Distance from the middle of the picture, 1 at its sides.
float fromMiddle(float u, float v) {
    return 2 * std::hypot(u - 0.5f, v - 0.5f);
}

} // namespace

// A drop: of blood, of water, whatever its colour says.
void paintDrop(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    canvas.fill([&](float u, float v) {
        float angle = std::atan2(v - 0.5f, u - 0.5f) / 6.2831853f + 0.5f;
        float r = fromMiddle(u, v) * (1 + 0.10f * noise.gradient(angle, 0, {6, 1}));
        float shine = ramp(0.34f, 0.0f, std::hypot(u - 0.38f, v - 0.64f) * 2);
        float tone = mix(0.62f, 0.92f, ramp(0.9f, 0.1f, r)) + 0.35f * shine;
        return Colour{tone, tone, tone, ramp(0.92f, 0.42f, r)};
    });
}

// A puff with a ragged outline, lighter on top.
void paintDust(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    canvas.fill([&](float u, float v) {
        float r = fromMiddle(u, v);
        float cloud = noise.clouds(u, v, {3, 3}, 5);
        float alpha = ramp(0.95f, 0.05f, r + 0.9f * (0.5f - cloud)) * ramp(1.0f, 0.75f, r);
        float tone = mix(0.62f, 1.0f, ramp(-0.3f, 1.1f, v + 0.6f * (cloud - 0.5f)));
        return Colour{tone, tone, tone, 0.85f * alpha};
    });
}

// Drawn by adding, so that its colour must fade to black by itself.
void paintSpark(Canvas& canvas, std::uint32_t) {
    canvas.fill([](float u, float v) {
        float r = fromMiddle(u, v);
        float core = std::exp(-r * r * 22), glow = 0.50f * std::exp(-r * r * 5);
        float x = std::abs(2 * u - 1), y = std::abs(2 * v - 1);
        float rays =
            0.30f * (std::exp(-y * 22) * std::exp(-x * 4) + std::exp(-x * 22) * std::exp(-y * 4));
        float light = std::min(1.0f, core + glow + rays) * ramp(1.0f, 0.7f, r);
        return Colour{light, light, light, light};
    });
}
