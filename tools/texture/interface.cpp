// What lies over the world: the plain white that is tinted, the slider and the pointer.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::coverage;
using shape::mix;
using shape::ramp;

void paintWhite(Canvas& canvas, std::uint32_t) {
    canvas.fill([](float, float) { return Colour{1, 1, 1, 1}; });
}

// A groove in stone that fills with light to the right, with rounded ends.
void paintSlider(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    canvas.fill([&](float u, float v) {
        float x = (u - 0.5f) * w, y = (v - 0.5f) * h;
        float outer = shape::box(x, y, w / 2 - 1, h / 2 - 3, h / 2 - 4);
        float groove = shape::box(x, y, w / 2 - 9, h / 2 - 10, h / 2 - 11);
        Colour rim = palette::slate * mix(0.55f, 1.1f, ramp(-10, 10, y)) *
                     mix(0.85f, 1.15f, noise.clouds(u, v, {24, 6}, 4));
        rim = mix(rim, palette::moonlight, 0.5f * ramp(-3, 0, outer) * ramp(0, 10, y));
        Colour fill = mix(palette::night * 1.5f, palette::bone, 0.85f * u * u) *
                      mix(1.0f, 0.7f, ramp(-4, 5, y));
        return mix(rim, fill, coverage(groove)).fade(coverage(outer));
    });
}

// A bright point in a soft dark ring, so that it is found on black and on white.
void paintCursor(Canvas& canvas, std::uint32_t) {
    float size = static_cast<float>(canvas.width());
    canvas.fill([&](float u, float v) {
        float r = std::hypot(u - 0.5f, v - 0.5f) * size;
        float core = ramp(8.5f, 6.5f, r), ring = ramp(15.5f, 9.5f, r);
        float tone = mix(0.70f, 1.0f, ramp(8.0f, 2.0f, r)) * core;
        return Colour{tone, tone, tone, std::max(core, 0.75f * ring)};
    });
}
