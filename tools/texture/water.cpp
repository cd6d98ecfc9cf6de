// Water seen from the side: v runs from the bottom to the surface, whatever the depth.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::mix;
using shape::ramp;

// Tinted when drawn. A bright skin on top, light that hangs down from it in folds, clear below the
// surface and thicker with depth.
void paintWater(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), folds(seed + 100);
    canvas.fill([&](float u, float v) {
        float depth = 1 - v;
        float drift = 0.03f * noise.gradient(u, v, {5, 4});
        float shaft = folds.clouds(u + drift, 0.15f * v, {14, 2}, 3);
        float rays = ramp(0.50f, 0.78f, shaft) * ramp(0.55f, 0.02f, depth);
        float net = folds.ridges(u + drift, v, {9, 9}, 2) * ramp(0.30f, 0.0f, depth);
        float murk = noise.clouds(u, v, {6, 4}, 6) - 0.5f;
        float skin = ramp(0.022f, 0.006f, depth);
        float under = ramp(0.09f, 0.0f, depth);
        float tone = mix(0.62f, 0.24f, ramp(0.0f, 0.95f, depth)) + 0.20f * murk;
        tone += 0.16f * rays + 0.10f * net * net + 0.10f * under;
        tone = mix(tone, 0.88f + 0.12f * noise.gradient(u, v, {40, 20}), skin); // it glints
        float alpha = mix(0.44f, 0.80f, ramp(0.02f, 1.0f, depth)) + 0.06f * murk + 0.05f * rays;
        alpha = mix(alpha, 1.0f, skin) * ramp(-0.001f, 0.006f, depth); // a soft upper edge
        return Colour{tone * 0.96f, tone, tone, shape::clamp01(alpha)};
    });
}
