// Iron and steel: plates that rust, plates that hold, and chains.

#include "Noise.h"
#include "Recipes.h"
#include "Relief.h"
#include "Shape.h"

using shape::mix;
using shape::ramp;

namespace {

// A wall of equal riveted plates, every other row shifted by half a plate.
struct PlatePlace {
    float edge;   // signed distance to the plate's edge in pixels, below 0 inside
    float rivet;  // signed distance to the nearest rivet's rim in pixels
    float drip;   // 1 right under a rivet, falling to 0 further down
    float random; // 0 to 1, the same all over one plate
};

PlatePlace plateAt(const Noise& noise, float x, float y, float width, float height, int perRow) {
    float row = std::floor(y / height);
    float shifted = x + (static_cast<int>(row) % 2 != 0 ? width / 2 : 0);
    float column = std::floor(shifted / width);
    float px = shifted - (column + 0.5f) * width, py = y - (row + 0.5f) * height;
    float edge = shape::box(px, py, width / 2 - 1, height / 2 - 1, 3);
    // Rivets stand in from the edges, a fixed step apart along the top and bottom.
    constexpr float inset = 8, radius = 2.6f;
    float step = (width - 2 * inset) / 3;
    float slot = std::clamp(std::floor((px + width / 2 - inset) / step + 0.5f), 0.0f, 3.0f);
    float rx = px + width / 2 - inset - slot * step;
    float fromLine = std::abs(py) - (height / 2 - inset);
    float below = (py > 0 ? height / 2 - inset : -height / 2 + inset) - py;
    float drip = below > 0 ? std::exp(-below / 14) * std::exp(-rx * rx / 5) : 0;
    int number = static_cast<int>(column) % perRow + 17 * static_cast<int>(row);
    return {edge, shape::disc(rx, fromLine, radius), drip, noise.at(number, 4)};
}

} // namespace

void paintRust(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    auto plate = [&](float u, float v) { return plateAt(noise, u * w, v * h, w / 2, h / 4, 2); };
    auto eaten = [&](float u, float v) {
        return noise.clouds(u, v, {5, 5}, 6) + 0.20f * (fine.clouds(u, v, {24, 24}, 4) - 0.5f);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        PlatePlace p = plate(u, v);
        float face = 1 - ramp(-3, 1, p.edge);
        float scale = 3.0f * ramp(0.45f, 0.62f, eaten(u, v)) * fine.ridges(u, v, {26, 26}, 4);
        float hole = 4 * ramp(0.70f, 0.78f, eaten(u, v));
        return face * (5 + p.random) + scale - hole + 2.8f * ramp(1.2f, -2.2f, p.rivet) +
               0.6f * fine.clouds(u, v, {64, 64}, 2);
    });
    relief.paint(canvas, [&](float u, float v) {
        PlatePlace p = plate(u, v);
        float rot = eaten(u, v) + 0.06f * ramp(-8, 0, p.edge) + 0.16f * p.drip;
        Colour paint = mix(palette::slate * 0.80f, palette::slate * 0.95f, p.random) *
                       mix(0.85f, 1.1f, fine.clouds(u, v, {14, 14}, 4));
        Colour deep = palette::rust * mix(0.40f, 1.0f, fine.clouds(u, v, {20, 20}, 5));
        Colour bright =
            mix(palette::rust, Colour{0.56f, 0.36f, 0.22f}, fine.clouds(u, v, {34, 34}, 4));
        Colour c = mix(paint, bright, ramp(0.44f, 0.54f, rot));
        c = mix(c, deep, ramp(0.52f, 0.62f, rot));
        c = mix(c, palette::night * 1.8f, 0.85f * ramp(0.72f, 0.80f, rot));
        c = mix(c, palette::rust * 0.7f, 0.6f * p.drip);
        return mix(c, palette::night, 0.85f * ramp(-1, 1, p.edge));
    });
}

void paintMetal(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    auto plate = [&](float u, float v) { return plateAt(noise, u * w, v * h, w / 2, h / 2, 2); };
    // Scratches: the zero crossings of noise that is stretched along them, where it is broken.
    auto scratches = [&](float u, float v) {
        float across = std::abs(fine.gradient(u, v + 0.5f * noise.gradient(u, v, {2, 2}), {5, 22}));
        return ramp(0.56f, 0.66f, noise.clouds(u, v, {9, 9}, 3)) * ramp(0.06f, 0.0f, across);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        PlatePlace p = plate(u, v);
        float face = 1 - ramp(-4, 1, p.edge);
        float dents = 7 * noise.clouds(u, v, {4, 4}, 2);
        return face * (5 + p.random) + dents + 0.7f * fine.value(u, v, {6, 128}) -
               1.1f * scratches(u, v) + 2.8f * ramp(1.2f, -2.2f, p.rivet);
    });
    relief.paint(canvas, [&](float u, float v) {
        PlatePlace p = plate(u, v);
        Colour steel = mix(palette::slate, palette::steel, p.random) * 0.85f;
        steel = steel * mix(0.80f, 1.15f, fine.value(u, v, {5, 110})) *
                mix(0.75f, 1.2f, noise.clouds(u, v, {6, 6}, 5));
        steel = mix(steel, palette::bone * 0.85f, 0.45f * scratches(u, v));
        float worn = ramp(-7, -1.5f, p.edge) * ramp(0.40f, 0.62f, fine.clouds(u, v, {16, 16}, 4));
        steel = mix(steel, palette::bone * 0.9f, 0.40f * worn);
        float rot =
            noise.clouds(u + 0.3f, v, {6, 6}, 6) + 0.10f * ramp(-9, 0, p.edge) + 0.25f * p.drip;
        steel = mix(steel, palette::rust * mix(0.6f, 1.1f, fine.clouds(u, v, {30, 30}, 3)),
                    0.75f * ramp(0.62f, 0.75f, rot));
        return mix(steel, palette::night, 0.85f * ramp(-1.2f, 0.8f, p.edge));
    });
}

// Chains hang from all that can be lifted here, often on strips of a few pixels, so the links are
// small and stand side by side: a strip cut from anywhere reads as chain.
void paintChain(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    constexpr float pitchX = 8, pitchY = 16;
    struct Link {
        float across; // -1 to 1 over the wire
        float lift;   // height of the wire's middle, in pixels
        float random;
    };
    // Even columns show a link's face, an oval; between two ovals the next link is seen edgeways.
    auto linkAt = [&](float u, float v) {
        float column = std::floor(u * w / pitchX);
        float x = u * w - (column + 0.5f) * pitchX;
        float y = v * h / pitchY + 0.5f * std::fmod(column, 2.0f);
        float row = std::floor(y);
        y = (y - row - 0.5f) * pitchY;
        float random = noise.at(static_cast<int>(column),
                                static_cast<int>(row) % static_cast<int>(h / pitchY));
        constexpr float wire = 1.45f;
        float straight = std::max(0.0f, std::abs(y) - 3.4f);
        float oval = std::abs(std::hypot(x, straight) - 2.3f) / wire;
        float fromEnd = pitchY / 2 - std::abs(y);
        float edgeways = std::hypot(x, std::max(0.0f, fromEnd - 3.2f)) / wire;
        if (edgeways < 1) {
            return Link{edgeways, 3.0f, random};
        }
        return Link{oval, 1.6f, random};
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        Link link = linkAt(u, v);
        float dome = std::sqrt(std::max(0.0f, 1 - link.across * link.across));
        return link.across < 1 ? 2 + link.lift * (0.3f + dome) : 0.0f;
    });
    relief.paint(canvas, [&](float u, float v) {
        Link link = linkAt(u, v);
        Colour iron = palette::steel * mix(0.75f, 1.25f, link.random);
        float rot = noise.clouds(u, v, {8, 8}, 4) + 0.25f * (fine.clouds(u, v, {64, 64}, 2) - 0.5f);
        iron = mix(iron, palette::rust * 1.1f, 0.85f * ramp(0.52f, 0.70f, rot));
        iron = iron * mix(1.25f, 0.7f, std::min(1.0f, link.across * link.across));
        return iron.fade(ramp(1.2f, 0.8f, link.across));
    });
}
