// The light that lamps throw. It is added to the light map by colour alone, and must end in black
// at the picture's sides.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::ramp;

namespace {

// Where the pixel lies, from the middle of the picture.
struct Place {
    float x, y;  // -1 to 1, y up
    float r;     // 1 at the sides
    float angle; // of a full turn, 0 to 1
};

// Slow gradients of few steps show as bands in a dark room. Half a step of chance breaks them up.
float dithered(float light, const Noise& noise, float u, float v) {
    const float step = 1.0f / 255;
    const float chance = noise.at(static_cast<int>(u * 4096), static_cast<int>(v * 4096)) - 0.5f;
    return light < step ? 0 : light + step * chance;
}

template <class Light>
void paintGlow(Canvas& canvas, const Noise& noise, const Light& light) {
    canvas.fill([&](float u, float v) {
        float x = 2 * u - 1, y = 2 * v - 1;
        Place place{x, y, std::hypot(x, y), std::atan2(y, x) / 6.2831853f + 0.5f};
        float tone = dithered(light(place) * ramp(0.98f, 0.72f, place.r), noise, u, v);
        return Colour{tone, tone, tone, 1};
    });
}

// Brightness at a distance, 1 at the lamp.
float falloff(float r) {
    float fall = std::max(0.0f, 1 - r * r);
    return 0.78f * fall * fall + 0.22f * std::exp(-r * r * 14);
}

} // namespace

// A bulb in the open.
void paintLight(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    paintGlow(canvas, noise, [&](const Place& p) {
        float uneven = 0.05f * noise.gradient(p.angle, 0.5f, {9, 1}) * ramp(0.1f, 0.5f, p.r);
        return falloff(p.r * (1 + uneven));
    });
}

// A hooded lamp in the middle of the picture that shines downwards.
void paintCone(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    paintGlow(canvas, noise, [&](const Place& p) {
        float below = -p.y;
        float edge = below > 0 ? std::abs(p.x) / (0.06f + 0.68f * below) : 9.0f;
        float streaks = 1 + 0.10f * noise.gradient(p.angle, 0.5f, {48, 1});
        float beam = ramp(1.15f, 0.35f, edge) * ramp(-0.02f, 0.10f, below) * streaks;
        float reach = ramp(1.0f, 0.0f, p.r);
        return 0.95f * beam * reach + 0.22f * std::exp(-p.r * p.r * 60) + 0.05f * falloff(p.r);
    });
}

// A fire, with tongues of light that are never alike.
void paintFire(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    paintGlow(canvas, noise, [&](const Place& p) {
        float tongues = 0.7f * noise.gradient(p.angle, 0.5f, {7, 1}) +
                        0.3f * noise.gradient(p.angle, 0.5f, {19, 1});
        float smoke = noise.clouds(0.5f + 0.5f * p.x, 0.5f + 0.5f * p.y, {4, 4}, 4) - 0.5f;
        float away = ramp(0.05f, 0.5f, p.r);
        return falloff(p.r * (1 + (0.26f * tongues + 0.35f * smoke) * away));
    });
}
