// The name of the game, in letters that somebody cut out of bone and left in the rain.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

#include <span>

using shape::mix;
using shape::ramp;

namespace {

// Letters are 1 high and stand on y 0; a stroke is a line with its thickness at either end.
struct Stroke {
    float ax, ay, bx, by;
    float thickA = 1, thickB = 1;
};

constexpr Stroke letterT[] = {{0.02f, 0.96f, 0.80f, 1.00f, 0.85f, 1.15f},
                              {0.40f, 0.98f, 0.43f, 0.00f, 1.20f, 0.80f}};
constexpr Stroke letterL[] = {{0.10f, 1.00f, 0.08f, 0.02f, 0.80f, 1.20f},
                              {0.08f, 0.01f, 0.60f, 0.06f, 1.10f, 0.70f}};
constexpr Stroke letterM[] = {{0.02f, 0.00f, 0.14f, 0.98f, 0.75f, 1.05f},
                              {0.14f, 0.98f, 0.46f, 0.30f, 1.20f, 0.85f},
                              {0.46f, 0.30f, 0.78f, 1.00f, 0.85f, 1.10f},
                              {0.78f, 1.00f, 0.92f, 0.00f, 1.05f, 0.80f}};
constexpr Stroke firstE[] = {{0.10f, 0.98f, 0.09f, 0.02f, 1.00f, 1.15f},
                             {0.10f, 0.98f, 0.58f, 0.95f, 0.90f, 0.70f},
                             {0.10f, 0.52f, 0.47f, 0.50f, 0.85f, 0.60f},
                             {0.09f, 0.02f, 0.62f, 0.04f, 1.05f, 0.75f}};
constexpr Stroke letterR[] = {
    {0.10f, 0.00f, 0.11f, 1.00f, 0.75f, 1.10f}, {0.11f, 0.98f, 0.45f, 0.95f, 1.00f, 0.90f},
    {0.45f, 0.95f, 0.60f, 0.76f, 0.90f, 1.05f}, {0.60f, 0.76f, 0.44f, 0.54f, 1.05f, 0.85f},
    {0.44f, 0.54f, 0.12f, 0.49f, 0.85f, 0.75f}, {0.33f, 0.50f, 0.70f, 0.00f, 0.95f, 1.00f}};
constexpr Stroke lastE[] = {{0.12f, 1.00f, 0.09f, 0.00f, 0.85f, 1.10f},
                            {0.12f, 1.00f, 0.62f, 1.00f, 1.00f, 0.65f},
                            {0.10f, 0.47f, 0.50f, 0.52f, 0.80f, 0.70f},
                            {0.09f, 0.00f, 0.58f, -0.03f, 1.10f, 0.80f}};

struct Letter {
    float left; // from the middle of the picture, in heights of a letter
    std::span<const Stroke> strokes;
};
constexpr float eyeX = -2.06f; // the letter O is an eye, and has no strokes
constexpr Letter letters[] = {{-3.44f, letterT}, {-1.47f, letterL}, {-0.66f, letterM},
                              {0.47f, firstE},   {1.27f, letterR},  {2.16f, lastE}};

constexpr float eyeY = 0.49f;
constexpr float thickness = 0.088f; // half of a stroke's
constexpr Colour ember{1.0f, 0.46f, 0.14f};

float ringAt(float x, float y) {
    float ring = std::abs(shape::ellipse(x - eyeX, y - eyeY, 0.40f, 0.44f));
    float turn = std::atan2(y - eyeY, x - eyeX);
    return ring - thickness * (0.92f + 0.22f * std::sin(turn * 2 + 0.7f));
}

/// Distance to the nearest letter, in heights.
float lettersAt(float x, float y) {
    float nearest = ringAt(x, y);
    for (const Letter& letter : letters) {
        if (x < letter.left - 0.5f || x > letter.left + 1.5f) {
            continue;
        }
        for (const Stroke& s : letter.strokes) {
            float d = shape::capsule(x - letter.left, y, s.ax, s.ay, s.bx, s.by,
                                     s.thickA * thickness, s.thickB * thickness);
            nearest = shape::blend(nearest, d, 0.03f);
        }
    }
    return nearest;
}

/// The picture's plane: x and y in heights of a letter, bent a little by the hand that cut them.
struct Plane {
    Noise noise;
    float perPixel, width, height;

    Plane(const Canvas& canvas, std::uint32_t seed)
        : noise(seed),
          perPixel(1 / (0.56f * static_cast<float>(canvas.height()))),
          width(static_cast<float>(canvas.width())),
          height(static_cast<float>(canvas.height())) {}

    float x(float u) const { return (u - 0.5f) * width * perPixel - 0.32f; }
    float y(float v) const { return (v - 0.5f) * height * perPixel + 0.48f; }
    float distance(float u, float v) const {
        float chipped =
            0.007f * noise.gradient(u, v, {90, 24}) + 0.006f * noise.gradient(u, v, {210, 54});
        float bendX = 0.034f * noise.gradient(u, v, {22, 6});
        float bendY = 0.030f * noise.gradient(v, u, {6, 22});
        return lettersAt(x(u) + bendX, y(v) + bendY) + chipped;
    }
};

/// Bone above, rust that has crept up from below and run down again.
Colour surfaceAt(const Plane& plane, float u, float v, float distance) {
    const Noise& noise = plane.noise;
    float depth = -distance / thickness; // 0 at the edge, about 1 in the middle of a stroke
    float grain = noise.clouds(u, v, {60, 16}, 5);
    Colour c = mix(palette::bone * 0.62f, palette::bone * 1.04f, grain);
    float eaten = noise.clouds(u, v, {22, 6}, 6) + 0.42f * (0.42f - plane.y(v));
    Colour rust =
        mix(palette::rust * 0.55f, Colour{0.62f, 0.31f, 0.15f}, noise.clouds(v, u, {24, 90}, 4));
    c = mix(c, rust, ramp(0.46f, 0.60f, eaten));
    float crack = std::abs(noise.gradient(u, v, {40, 11}));
    c = mix(c, palette::night, 0.75f * ramp(0.045f, 0.0f, crack) * ramp(0.40f, 0.55f, grain));
    // Lit from above: the edge that faces up shines, the one below is in the dark.
    float step = 0.03f / (plane.height * plane.perPixel);
    float above = plane.distance(u, v + step), below = plane.distance(u, v - step);
    float slope = std::clamp((above - below) / 0.06f, -1.0f, 1.0f);
    float edge = ramp(0.9f, 0.05f, depth);
    c = c * mix(1.0f, mix(0.38f, 1.30f, 0.5f + 0.5f * slope), edge);
    return mix(c, Colour{1.0f, 0.95f, 0.86f}, 0.55f * ramp(0.35f, 0.95f, slope) * edge);
}

/// What looks out of the O.
Colour eyeAt(float x, float y) {
    float ex = x - eyeX, ey = y - eyeY;
    float ball = shape::ellipse(ex, ey, 0.30f, 0.34f);
    float slit = shape::ellipse(ex, ey, 0.045f, 0.20f);
    float r = std::hypot(ex, ey);
    Colour glow = mix(Colour{0.30f, 0.05f, 0.02f}, ember, ramp(0.26f, 0.02f, r));
    glow = mix(glow, Colour{0.03f, 0.01f, 0.01f}, ramp(0.015f, -0.015f, slit));
    return glow.fade(ramp(0.01f, -0.12f, ball) * mix(0.35f, 1.0f, ramp(0.28f, 0.06f, r)));
}

} // namespace

void paintLogo(Canvas& canvas, std::uint32_t seed) {
    const Plane plane(canvas, seed);
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            float u = (static_cast<float>(column) + 0.5f) / plane.width;
            float v = (static_cast<float>(row) + 0.5f) / plane.height;
            float d = plane.distance(u, v);
            float edges =
                ramp(0, 0.10f, u) * ramp(1, 0.90f, u) * ramp(0, 0.22f, v) * ramp(1, 0.80f, v);
            float smoke = plane.noise.clouds(u, v, {16, 4}, 4);
            float halo = std::exp(-std::max(d, 0.0f) / 0.11f) * mix(0.25f, 0.75f, smoke);
            canvas.at(column, row) =
                mix(palette::rust * 0.4f, ember * 0.62f, halo).fade(0.60f * halo * edges);
            canvas.over(column, row, palette::night.fade(0.85f * ramp(0.045f, 0.0f, d)));
            canvas.over(column, row, eyeAt(plane.x(u), plane.y(v)));
            canvas.over(column, row,
                        surfaceAt(plane, u, v, d).fade(shape::coverage(d / plane.perPixel)));
        }
    }
}
