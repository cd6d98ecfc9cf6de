// What the place is built on and of: dressed stone, brick, living rock and earth.

#include "Masonry.h"
#include "Recipes.h"
#include "Relief.h"
#include "Shape.h"

using shape::mix;
using shape::ramp;

namespace {

float pixels(int n) {
    return static_cast<float>(n);
}

// Damp runs down a wall in streaks: much finer across than down.
float damp(const Noise& noise, float u, float v) {
    float streak = noise.clouds(u, v, {24, 3}, 4);
    float patch = noise.clouds(u + 0.37f, v, {3, 3}, 3);
    return ramp(0.45f, 0.75f, 0.55f * streak + 0.5f * patch);
}

} // namespace

void paintStone(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float w = pixels(canvas.width()), h = pixels(canvas.height());
    Masonry wall(w, h, {w / 10, w / 6.5f, 0.8f, 7, 4}, noise);
    auto blockAt = [&](float u, float v) {
        float warpX = 5 * noise.gradient(u, v, {14, 14}) + 2 * fine.gradient(u, v, {50, 50});
        float warpY = 4 * fine.gradient(u, v, {16, 16}) + 2 * noise.gradient(u, v, {55, 55});
        return wall.at(u * w + warpX, v * h + warpY);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        BlockPlace block = blockAt(u, v);
        float face = 1 - ramp(-6.5f, 1, block.edge);
        float tilt = (block.random - 0.5f) * block.x + 0.6f * block.y;
        float chisel =
            2.2f * noise.ridges(u, v, {22, 22}, 4) + 1.1f * fine.clouds(u, v, {90, 90}, 2);
        float crack = ramp(0.035f, 0.0f, std::abs(noise.clouds(u, v, {7, 7}, 4) - 0.5f));
        NearestCell hole = fine.cells(u, v, {46, 46});
        float pit = ramp(0.34f, 0.05f, hole.nearest) * ramp(0.66f, 0.9f, hole.random);
        return face * (7 + 2.5f * tilt + chisel - 2.2f * crack * block.random - 1.8f * pit);
    });
    relief.paint(canvas, [&](float u, float v) {
        BlockPlace block = blockAt(u, v);
        Colour stone = mix(palette::slate, Colour{0.43f, 0.42f, 0.42f},
                           fine.at(7, static_cast<int>(block.random * 997)));
        stone = stone * mix(0.80f, 1.15f, block.random);
        stone = stone * mix(0.82f, 1.18f, noise.clouds(u, v, {12, 12}, 5));
        Colour lichen = mix(palette::bone, palette::slate, 0.55f);
        stone = mix(stone, lichen, 0.55f * ramp(0.60f, 0.80f, fine.clouds(u, v, {9, 9}, 6)));
        stone = mix(stone, stone * 0.55f, 0.75f * damp(fine, u, v));
        stone = mix(stone, palette::rust, 0.16f * ramp(0.62f, 0.9f, noise.clouds(u, v, {5, 5}, 5)));
        return mix(stone, palette::night * 1.6f, ramp(-2, 2, block.edge));
    });
}

void paintBrick(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float w = pixels(canvas.width()), h = pixels(canvas.height());
    Masonry wall(w, h, {h / 24, w / 10, 0.10f, 2.5f, 3}, noise);
    auto blockAt = [&](float u, float v) {
        float warpX = 1.6f * noise.gradient(u, v, {40, 40});
        float warpY = 1.6f * fine.gradient(u, v, {36, 36});
        return wall.at(u * w + warpX, v * h + warpY);
    };
    // A few bricks have lost their face, and the wall is chipped along a ragged band.
    auto worn = [&](const BlockPlace& block, float u, float v) {
        float chip = noise.clouds(u, v, {10, 10}, 5) + 0.25f * (block.random - 0.5f);
        return ramp(0.66f, 0.74f, chip);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        BlockPlace block = blockAt(u, v);
        float face = 1 - ramp(-3.5f, 0.5f, block.edge);
        float grit = 1.5f * fine.clouds(u, v, {64, 64}, 4);
        float height = 3.5f + 2.2f * block.random + 0.8f * block.y;
        return face * mix(height, 1.0f + 2 * grit, worn(block, u, v)) + grit;
    });
    relief.paint(canvas, [&](float u, float v) {
        BlockPlace block = blockAt(u, v);
        Colour burnt = mix(palette::rust, palette::slate, 0.45f);
        Colour brick = mix(burnt * 0.75f, mix(palette::rust, palette::timber, 0.5f), block.random);
        brick = mix(brick, palette::slate * 0.8f,
                    ramp(0.90f, 0.94f, fine.at(3, static_cast<int>(block.random * 997))));
        brick =
            mix(brick, palette::slate, 0.22f) * mix(0.75f, 1.25f, fine.clouds(u, v, {24, 24}, 5));
        brick = mix(brick, brick * 1.1f + Colour{0.04f, 0.03f, 0.025f}, worn(block, u, v));
        brick = mix(brick, palette::bone * 0.7f,
                    0.30f * ramp(0.62f, 0.85f, noise.clouds(u, v, {6, 6}, 6)));
        Colour mortar = mix(palette::slate * 0.50f, palette::night, 0.35f) *
                        mix(0.8f, 1.2f, fine.clouds(u, v, {60, 60}, 3));
        brick = mix(brick, mortar, ramp(-1.5f, 0.8f, block.edge));
        return mix(brick, brick * 0.5f, 0.8f * damp(noise, u, v));
    });
}

void paintRock(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    struct Facet {
        NearestCell big, small;
    };
    auto facetAt = [&](float u, float v) {
        float warpU =
            u + 0.020f * noise.gradient(u, v, {8, 8}) + 0.006f * fine.gradient(u, v, {30, 30});
        float warpV =
            v + 0.020f * fine.gradient(u, v, {8, 8}) + 0.006f * noise.gradient(u, v, {30, 30});
        return Facet{noise.cells(warpU, warpV, {7, 9}), fine.cells(warpU, warpV, {19, 23})};
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        auto [big, small] = facetAt(u, v);
        float tiltBig = (big.random - 0.5f) * big.dx + 0.9f * big.dy;
        float tiltSmall = (small.random - 0.5f) * 2 * small.dx + small.dy;
        float cleft = ramp(0.0f, 0.16f, big.second - big.nearest);
        float split = ramp(0.0f, 0.12f, small.second - small.nearest);
        return 14 * noise.clouds(u, v, {4, 4}, 3) + cleft * (8 + 9 * tiltBig) +
               (0.4f + 0.6f * split) * 2.4f * tiltSmall + 3.0f * fine.ridges(u, v, {16, 16}, 5);
    });
    relief.paint(canvas, [&](float u, float v) {
        auto [big, small] = facetAt(u, v);
        Colour rock = mix(palette::slate * 0.85f, Colour{0.33f, 0.32f, 0.33f}, big.random);
        rock = rock * mix(0.85f, 1.12f, small.random);
        rock = rock * mix(0.75f, 1.25f, fine.clouds(u, v, {14, 14}, 6));
        rock = mix(rock, palette::rust * 0.8f,
                   0.35f * ramp(0.6f, 0.8f, noise.clouds(u, v, {6, 10}, 5)));
        rock = mix(rock, rock * 0.6f, 0.7f * damp(noise, u, v));
        return mix(palette::night * 1.5f, rock, ramp(-0.02f, 0.10f, big.second - big.nearest));
    });
}

void paintDirt(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    auto pebbleAt = [&](float u, float v) {
        NearestCell pebble = fine.cells(u + 0.010f * noise.gradient(u, v, {40, 40}), v, {17, 20});
        float radius = 0.10f + 0.38f * pebble.random * pebble.random;
        bool present = noise.at(static_cast<int>(pebble.random * 9973), 5) > 0.45f;
        pebble.nearest = present ? pebble.nearest / radius : 9;
        return pebble;
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        NearestCell pebble = pebbleAt(u, v);
        float dome = std::sqrt(std::max(0.0f, 1 - pebble.nearest * pebble.nearest));
        float clod = 9 * noise.clouds(u, v, {6, 6}, 6) + 2.5f * fine.ridges(u, v, {20, 20}, 3);
        return clod + (1.5f + 8 * pebble.random * pebble.random) * dome;
    });
    relief.paint(canvas, [&](float u, float v) {
        NearestCell pebble = pebbleAt(u, v);
        Colour soil = mix(Colour{0.24f, 0.20f, 0.18f}, Colour{0.36f, 0.28f, 0.22f},
                          noise.clouds(u, v, {5, 5}, 5));
        soil = soil * mix(0.7f, 1.3f, fine.clouds(u, v, {40, 40}, 3));
        Colour grey = mix(palette::slate, palette::timber,
                          noise.at(static_cast<int>(pebble.random * 9973), 6)) *
                      0.72f;
        return mix(soil, grey, ramp(1.0f, 0.9f, pebble.nearest));
    });
}
