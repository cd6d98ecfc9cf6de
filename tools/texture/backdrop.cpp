// What stands behind the world: haze, and the shapes of halls that nobody walks in.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::coverage;
using shape::mix;
using shape::ramp;

namespace {

constexpr Colour distant{0.135f, 0.170f, 0.255f};
constexpr Colour distantLight{0.29f, 0.35f, 0.48f};

// Distant stone: blue, nearly flat, lighter at edges that face up or left, drowned in mist below.
Colour silhouette(const Noise& noise, float u, float v, float edge, float edgeAbove,
                  float edgeLeft) {
    float grain = noise.clouds(u, v, {10, 20}, 5);
    Colour c = mix(distant * 0.72f, distant * 1.15f, grain);
    float top = ramp(7, 0, -edgeAbove), left = ramp(10, 0, -edgeLeft);
    c = mix(c, distantLight, 0.55f * top + 0.28f * left * (1 - top));
    c = mix(c, distantLight * 0.75f, 0.55f * ramp(0.45f, 0.0f, v + 0.25f * (grain - 0.5f)));
    float mist = ramp(0.0f, 0.30f, v + 0.20f * (noise.clouds(u, v, {4, 6}, 4) - 0.5f));
    return c.fade(coverage(edge) * mix(0.0f, 0.96f, mist));
}

// Paints a silhouette by its distance function, which is also asked a little above and to the
// left to find the edges that the light falls on.
template <class Distance>
void paintSilhouette(Canvas& canvas, const Noise& noise, const Distance& distance) {
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    canvas.fill([&](float u, float v) {
        float x = u * w, y = v * h;
        float chip =
            2.4f * noise.gradient(u, v, {static_cast<int>(w / 10), static_cast<int>(h / 10)}) +
            3.0f * noise.gradient(v, u, {static_cast<int>(h / 40), static_cast<int>(w / 40)});
        return silhouette(noise, u, v, distance(x, y) + chip, distance(x, y + 5) + chip,
                          distance(x - 6, y) + chip);
    });
}

} // namespace

// Banks of mist, thick below and gone above.
void paintHaze(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    canvas.fill([&](float u, float v) {
        float warp = 0.05f * noise.gradient(u, v, {4, 3});
        float cloud = 0.65f * noise.clouds(u, v + warp, {3, 5}, 5) +
                      0.35f * fine.clouds(u + warp, v, {6, 9}, 4);
        float thick = ramp(1.0f, 0.05f, v + 0.55f * (0.5f - cloud));
        float ends = ramp(0.0f, 0.12f, v) * ramp(1.0f, 0.80f, v);
        Colour c =
            mix(palette::slate * 0.55f, palette::moonlight * 0.62f, ramp(0.30f, 0.75f, cloud));
        return c.fade(0.62f * thick * ends * mix(0.45f, 1.0f, ramp(0.32f, 0.68f, cloud)));
    });
}

void paintPillar(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    paintSilhouette(canvas, noise, [&](float x, float y) {
        x = std::abs(x - w / 2);
        float swell = 0.24f * w + 0.03f * w * std::sin(3.1415927f * y / h);
        float shaft = x - swell;
        // Drums stand on each other, a little apart.
        float drum = y / (h / 7), joint = std::abs(drum - std::floor(drum + 0.5f)) * h / 7;
        shaft += 2.6f * ramp(3.5f, 0, joint);
        float collar = shape::box(x, y - 0.885f * h, 0.31f * w, 0.012f * h, 3);
        float cushion = shape::ellipse(x, y - 0.925f * h, 0.37f * w, 0.030f * h);
        float slab = shape::box(x, y - 0.965f * h, 0.44f * w, 0.022f * h, 3);
        return std::min({std::max(shaft, y - 0.92f * h), collar, cushion, slab});
    });
    // A round shaft: lighter on the left, dark on the right, with faint flutes.
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            float t = (static_cast<float>(column) + 0.5f) / w * 2 - 1;
            float flute =
                0.5f + 0.5f * std::cos(std::asin(std::clamp(t / 0.56f, -1.0f, 1.0f)) * 12);
            Colour& c = canvas.at(column, row);
            c = c * (mix(1.35f, 0.62f, ramp(-0.5f, 0.6f, t)) * mix(0.86f, 1.08f, flute));
        }
    }
}

void paintArch(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    float springing = 0.42f * h, opening = 0.32f * w;
    auto fromCrown = [=](float x, float y) {
        return std::hypot(x - w / 2, std::max(0.0f, y - springing));
    };
    paintSilhouette(canvas, noise, [&](float x, float y) {
        float side = std::abs(x - w / 2);
        float hole = opening - fromCrown(x, y);
        // The top has fallen in on the right.
        float broken = 0.93f * h - 0.20f * h * ramp(0.60f * w, 0.90f * w, x) -
                       0.05f * h * ramp(0.80f * w, 0.82f * w, x) -
                       0.04f * h * ramp(0.30f * w, 0.28f * w, x);
        float wall = std::max(side - 0.46f * w, y - broken);
        float impost = shape::box(side - 0.40f * w, y - springing, 0.095f * w, 0.016f * h, 3);
        return std::min(std::max(wall, hole), impost);
    });
    // The ring of wedge stones, and courses in the wall.
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            float x = static_cast<float>(column) + 0.5f, y = static_cast<float>(row) + 0.5f;
            float radius = fromCrown(x, y), ring = radius - opening;
            float course = y / (h / 22),
                  joint = std::abs(course - std::floor(course + 0.5f)) * h / 22;
            float brick = x / (w / 12) + 0.5f * static_cast<float>(std::lround(course) % 2);
            float upright = std::abs(brick - std::floor(brick + 0.5f)) * w / 12;
            float line = std::min(joint, upright);
            float thickness = 0.085f * w;
            if (ring < thickness && y > springing) {
                float turn = std::atan2(y - springing, x - w / 2) / 3.1415927f * 15;
                line = std::min(std::abs(turn - std::floor(turn + 0.5f)) * 3.1415927f / 15 * radius,
                                thickness - ring);
            }
            Colour& c = canvas.at(column, row);
            c = c * mix(1.0f, 0.70f, ramp(2.2f, 0.3f, line));
        }
    }
}
