// What grows in the dark: moss in cushions, roots that hold the earth together, and lianas.

#include "Noise.h"
#include "Recipes.h"
#include "Relief.h"
#include "Shape.h"

#include <vector>

using shape::mix;
using shape::ramp;

namespace {

constexpr float tau = 6.2831853f;

constexpr Colour mossDeep{0.085f, 0.125f, 0.125f};
constexpr Colour mossBright{0.30f, 0.37f, 0.255f};
constexpr Colour soil{0.17f, 0.145f, 0.14f};
constexpr Colour bark{0.40f, 0.32f, 0.26f};

// A root wanders across the whole picture and comes back where it began. Its path is a sum of
// waves of whole numbers of periods, which makes it meet itself at the edges.
class Root {
public:
    Root(const Noise& noise, int number)
        : upright(noise.at(number, 0) < 0.4f),
          start(noise.at(number, 1)),
          thickness(mix(0.007f, 0.027f, std::pow(noise.at(number, 2), 1.8f))),
          phase{noise.at(number, 3) * tau, noise.at(number, 4) * tau, noise.at(number, 5) * tau},
          shade(noise.at(number, 6)) {}

    /// The place across the root, -1 to 1 inside it; `along` gets the place along it.
    float across(float u, float v, float& along) const {
        along = upright ? v : u;
        float t = along * tau;
        float centre = start + 0.050f * std::sin(t + phase[0]) +
                       0.022f * std::sin(2 * t + phase[1]) + 0.007f * std::sin(5 * t + phase[2]);
        float slope = 0.050f * std::cos(t + phase[0]) + 0.044f * std::cos(2 * t + phase[1]) +
                      0.035f * std::cos(5 * t + phase[2]);
        float distance = (upright ? u : v) - centre;
        distance -= std::floor(distance + 0.5f);
        float swell = 1 + 0.25f * std::sin(3 * t + phase[1]);
        return distance / (thickness * swell * std::sqrt(1 + tau * tau * slope * slope));
    }

    float radius() const { return thickness; }
    float tint() const { return shade; }

private:
    bool upright;
    float start, thickness, phase[3], shade;
};

} // namespace

void paintMoss(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    auto dome = [](const NearestCell& cell, float radius) {
        float t = cell.nearest / radius;
        return std::sqrt(std::max(0.0f, 1 - t * t));
    };
    auto cushions = [&](float u, float v) {
        float warp = 0.012f * noise.gradient(u, v, {20, 20});
        return 9 * dome(noise.cells(u + warp, v, {7, 8}), 0.80f) +
               5 * dome(fine.cells(u, v + warp, {15, 16}), 0.75f) +
               2.6f * dome(noise.cells(u + warp, v + warp, {42, 45}), 0.70f);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        return cushions(u, v) + 2.0f * fine.ridges(u, v, {48, 48}, 2) +
               4 * noise.clouds(u, v, {4, 4}, 3);
    });
    relief.paint(canvas, [&](float u, float v) {
        float height = cushions(u, v) / 16.6f + 0.25f * (noise.clouds(u, v, {6, 6}, 4) - 0.5f);
        Colour moss = mix(mossDeep, mossBright, ramp(0.15f, 1.0f, height));
        moss = mix(moss, mix(mossBright, palette::rust, 0.5f),
                   0.5f * ramp(0.62f, 0.85f, fine.clouds(u, v, {5, 5}, 5)));
        float tip = ramp(0.35f, 0.12f, fine.cells(u, v, {60, 60}).nearest);
        moss = mix(moss, palette::bone, 0.16f * tip * ramp(0.4f, 0.9f, height));
        return mix(palette::night, moss, ramp(0.02f, 0.35f, height));
    });
}

void paintRoots(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    std::vector<Root> roots;
    constexpr int count = 34;
    roots.reserve(count);
    for (int i = 0; i < count; ++i) {
        roots.emplace_back(noise, i);
    }
    float size = static_cast<float>(canvas.width());
    Canvas colours(canvas.width(), canvas.height());
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        int x = static_cast<int>(u * size),
            y = static_cast<int>(v * static_cast<float>(canvas.height()));
        float top = 7 * noise.clouds(u, v, {12, 12}, 5);
        float clod = fine.clouds(u, v, {40, 40}, 3);
        colours.at(x, y) =
            mix(soil, soil * 1.9f, ramp(0.35f, 0.75f, noise.clouds(u, v, {10, 10}, 5))) *
            mix(0.7f, 1.3f, clod);
        float warpU = u + 0.004f * fine.gradient(u, v, {24, 24});
        float warpV = v + 0.004f * noise.gradient(u, v, {24, 24});
        for (const Root& root : roots) {
            float along = 0, across = root.across(warpU, warpV, along);
            if (std::abs(across) >= 1) {
                continue;
            }
            float furrow = fine.value(along, 0.5f + 0.25f * across, {90, 12});
            float thick = root.radius() * size;
            float height = 2.0f + 5 * root.tint() + 1.15f * thick * std::sqrt(1 - across * across) +
                           1.1f * furrow;
            if (height > top) {
                top = height;
                Colour skin = mix(bark * 0.72f, mix(bark, palette::bone, 0.32f), root.tint());
                colours.at(x, y) =
                    skin * mix(0.65f, 1.2f, furrow) * mix(1.0f, 0.6f, across * across);
            }
        }
        return top;
    });
    relief.paint(canvas, [&](float u, float v) {
        int x = static_cast<int>(u * size),
            y = static_cast<int>(v * static_cast<float>(canvas.height()));
        return colours.at(x, y);
    });
}

// Three strands wound about each other, a link of a rope. Its upper and lower edges meet, so that
// links make one liana, and its sides are ragged.
void paintLiana(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    struct Strand {
        float height, across, tone; // 0 to 1; -1 to 1 inside the strand; 0 to 1
    };
    auto strandAt = [&](float u, float v) {
        float x = 2.2f * (u - 0.5f) + 0.08f * noise.gradient(u, v, {3, 5});
        Strand top{0, 2, 0};
        for (int i = 0; i < 3; ++i) {
            float turn = tau * (v + static_cast<float>(i) / 3);
            float across = (x - 0.48f * std::sin(turn)) / 0.46f;
            float height = std::sqrt(std::max(0.0f, 1 - across * across)) + 0.8f * std::cos(turn);
            if (std::abs(across) < 1 && (top.across > 1 || height > top.height)) {
                top = {height, across, noise.at(i, 7)};
            }
        }
        return top;
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        Strand strand = strandAt(u, v);
        return strand.across > 1 ? 0.0f : 7 + 5 * strand.height + 1.4f * fine.value(u, v, {24, 6});
    });
    relief.paint(canvas, [&](float u, float v) {
        Strand strand = strandAt(u, v);
        float moss = ramp(0.45f, 0.65f, noise.clouds(u, v, {3, 6}, 3));
        Colour skin = mix(bark * mix(1.1f, 1.5f, strand.tone), mossBright * 1.3f, 0.7f * moss);
        skin = skin * mix(0.7f, 1.2f, fine.value(u, v, {24, 6}));
        return skin.fade(ramp(1.02f, 0.85f, std::abs(strand.across)));
    });
}
