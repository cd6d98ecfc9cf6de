// Wood that has been wet for a long time: planks, a crate, a barrel.

#include "Masonry.h"
#include "Recipes.h"
#include "Relief.h"
#include "Shape.h"

using shape::coverage;
using shape::mix;
using shape::ramp;

namespace {

// Grain runs along `along` (0 to 1 over the picture) and is seen across `across`.
// `board` makes every board a piece of another tree.
struct Grain {
    float height; // in pixels
    float tone;   // 0 dark to 1 light
};

Grain grainAt(const Noise& noise, float along, float across, float board, Lattice lattice) {
    float shift = std::floor(board * 64) / 64;
    float bend = 0.02f * noise.gradient(along + shift, across, {lattice.x, 6});
    float vein = noise.value(along + shift, across + bend, {lattice.x * 2, lattice.y});
    float fibre = noise.value(along, across + bend, {lattice.x * 4, lattice.y * 3});
    float split =
        ramp(0.80f, 0.90f, vein) *
        ramp(0.4f, 0.7f, noise.value(along + shift, across, {lattice.x * 3, lattice.y / 3}));
    return {1.6f * vein + 1.0f * fibre - 3.0f * split, 0.55f * vein + 0.45f * fibre - 0.7f * split};
}

Colour woodColour(float tone, float board) {
    Colour wood = mix(palette::timber, mix(palette::slate, palette::timber, 0.45f), board);
    return mix(wood * 0.55f, wood * 1.25f + Colour{0.03f, 0.02f, 0.01f}, tone);
}

Colour ironColour(const Noise& noise, float u, float v) {
    Colour iron = palette::steel * mix(0.42f, 0.72f, noise.clouds(u, v, {20, 20}, 4));
    return mix(iron, palette::rust * 0.9f,
               0.8f * ramp(0.48f, 0.68f, noise.clouds(u + 0.5f, v, {9, 9}, 5)));
}

} // namespace

void paintPlank(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float w = static_cast<float>(canvas.width()), h = static_cast<float>(canvas.height());
    Masonry boards(w, h, {h / 14, w / 2.2f, 0.30f, 2, 2.5f}, noise);
    auto boardAt = [&](float u, float v) {
        return boards.at(u * w, v * h + 1.6f * noise.gradient(u, v, {16, 16}));
    };
    auto knot = [&](float u, float v) {
        NearestCell cell = noise.cells(u, v, {5, 14});
        return cell.random > 0.55f ? std::hypot(cell.dx * 2.2f, cell.dy * 1.1f) : 9.0f;
    };
    // A nail on either side of a board's middle, a little way in from its ends.
    auto nail = [&](const BlockPlace& board) {
        float x = (1 - std::abs(board.x)) * w / 4.4f - 10, y = (std::abs(board.y) - 0.45f) * h / 28;
        return shape::disc(x, y, 2.4f);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        BlockPlace board = boardAt(u, v);
        float ring = knot(u, v);
        float pull = 0.035f * std::exp(-ring * ring * 8) * (ring < 9 ? 1 : 0);
        Grain grain = grainAt(fine, u, v + pull, board.random, {4, 120});
        float rot = ramp(0.62f, 0.78f, noise.clouds(u, v, {6, 20}, 5) + 0.1f * std::abs(board.y));
        float face = 1 - ramp(-4.5f, 0.5f, board.edge);
        float bump = 2 * coverage(nail(board));
        return face * (5 + 2.5f * board.random + grain.height * 1.3f - 3 * rot + bump);
    });
    relief.paint(canvas, [&](float u, float v) {
        BlockPlace board = boardAt(u, v);
        float ring = knot(u, v);
        float pull = 0.035f * std::exp(-ring * ring * 8) * (ring < 9 ? 1 : 0);
        Grain grain = grainAt(fine, u, v + pull, board.random, {4, 120});
        Colour wood =
            woodColour(grain.tone, board.random) * mix(0.8f, 1.1f, noise.clouds(u, v, {5, 9}, 4));
        float rings = 0.5f + 0.5f * std::sin(ring * 48);
        wood = mix(wood, wood * mix(0.35f, 0.7f, rings), ramp(0.34f, 0.16f, ring));
        float rot = ramp(0.58f, 0.78f, noise.clouds(u, v, {6, 20}, 5));
        wood = mix(wood, mix(palette::slate, palette::night, 0.55f), 0.7f * rot);
        wood = mix(wood, palette::rust * 0.55f, 0.7f * ramp(7, 1, nail(board)));
        wood = mix(wood, palette::steel * 0.6f, coverage(nail(board)));
        return mix(wood, palette::night, ramp(-1.5f, 1, board.edge));
    });
}

void paintCrate(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    constexpr float frame = 0.15f; // width of the frame's boards, of the crate's side
    float size = static_cast<float>(canvas.width());
    enum Part { inner, brace, frameLying, frameStanding, iron };
    struct Place {
        Part part;
        float edge, board, rivet; // edge and rivet as distances in pixels
    };
    auto placeAt = [&](float u, float v) {
        float x = std::abs(u - 0.5f), y = std::abs(v - 0.5f);
        float fromSide = 0.5f - x, fromTop = 0.5f - y;
        // Iron sits on the corners as an angle with bevelled ends.
        float angle =
            std::max(std::min(fromSide, fromTop) - 0.105f, std::max(fromSide, fromTop) - 0.27f);
        float bevel = (fromSide + fromTop) - 0.33f;
        float ironEdge = std::max(angle, bevel) * size;
        if (ironEdge < 0) {
            float rivetA = std::hypot(fromSide - 0.052f, fromTop - 0.052f);
            float rivetB = std::hypot(std::min(fromSide, fromTop) - 0.052f,
                                      std::max(fromSide, fromTop) - 0.20f);
            return Place{iron, ironEdge, 0.5f, (std::min(rivetA, rivetB) - 0.019f) * size};
        }
        if (fromTop < frame || fromSide < frame) {
            bool lying = fromTop < frame;
            float d = lying ? fromTop : fromSide;
            float edge = std::abs(d - frame * 0.5f) - frame * 0.5f;
            float side = lying ? (v > 0.5f ? 0.2f : 0.7f) : (u > 0.5f ? 0.4f : 0.9f);
            float seam = lying ? edge : std::max(edge, frame - fromTop);
            return Place{lying ? frameLying : frameStanding, seam * size, side, 9};
        }
        float across = (u - v) * 0.70710678f;
        float braceEdge = std::abs(across) - 0.062f;
        if (braceEdge < 0) {
            return Place{brace, braceEdge * size, 0.55f, 9};
        }
        constexpr float boards = 5;
        float t = (u - frame) / (1 - 2 * frame) * boards;
        float part = t - std::floor(t);
        float edge = -std::min(part, 1 - part) / boards * (1 - 2 * frame);
        return Place{inner, edge * size, noise.at(static_cast<int>(t), 3), 9};
    };
    auto grainOf = [&](const Place& place, float u, float v) {
        constexpr float half = 0.70710678f;
        switch (place.part) {
        case inner:
        case frameStanding:
            return grainAt(fine, v, u, place.board, {4, 90});
        case brace:
            return grainAt(fine, (u + v) * half, (u - v) * half, place.board, {4, 90});
        default:
            return grainAt(fine, u, v, place.board, {4, 90});
        }
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        Place place = placeAt(u, v);
        constexpr float levels[] = {0, 6, 9, 8.5f, 11};
        float outer = 1 - ramp(-2.5f, 1.0f, place.edge);
        if (place.part == iron) {
            return levels[iron] - 2 * (1 - outer) + 1.0f * fine.clouds(u, v, {30, 30}, 3) +
                   3 * ramp(1.5f, -3.0f, place.rivet);
        }
        Grain grain = grainOf(place, u, v);
        return levels[place.part] - 4 * (1 - outer) + 0.9f * grain.height;
    });
    relief.paint(canvas, [&](float u, float v) {
        Place place = placeAt(u, v);
        if (place.part == iron) {
            Colour metal = ironColour(noise, u, v);
            return mix(metal, palette::steel * 0.9f, 0.5f * ramp(0.5f, -2.5f, place.rivet));
        }
        Colour wood = woodColour(grainOf(place, u, v).tone, 0.6f * place.board);
        wood = wood * (place.part == inner ? 0.72f : 1.12f);
        wood = wood * mix(0.78f, 1.15f, noise.clouds(u, v, {5, 5}, 5));
        return mix(wood, palette::night, 0.8f * ramp(-2.0f, 0.5f, place.edge));
    });
    // The outermost edge catches the light above and loses it below.
    float last = size - 1;
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            float top = ramp(5, 0, last - static_cast<float>(y)),
                  under = ramp(9, 0, static_cast<float>(y));
            float side = ramp(4, 0, std::min(static_cast<float>(x), last - static_cast<float>(x)));
            Colour& c = canvas.at(x, y);
            c = (c + palette::moonlight * (0.22f * top)) * (1 - 0.6f * under) * (1 - 0.35f * side);
        }
    }
}

void paintBarrel(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float size = static_cast<float>(canvas.width());
    constexpr float staves = 11;
    auto bulge = [](float v) { return 0.455f + 0.042f * (1 - 4 * (v - 0.5f) * (v - 0.5f)); };
    auto hoop = [&](float v) {
        float y = std::abs(v - 0.5f);
        return std::min(std::abs(y - 0.42f) - 0.036f, std::abs(y - 0.16f) - 0.030f) * size;
    };
    // The place round the barrel's axis, -1 to 1 over the half that is seen.
    auto turn = [&](float u, float v) {
        return std::asin(std::clamp((u - 0.5f) / bulge(v), -1.0f, 1.0f)) / 1.5707963f;
    };
    auto rivet = [&](float u, float v) {
        float y = std::abs(v - 0.5f), row = y > 0.29f ? 0.42f : 0.16f;
        float t = turn(u, v) * 3.5f, x = (t - std::floor(t) - 0.5f) / 3.5f * 0.7f;
        return shape::disc(x * size, (y - row) * size, 0.016f * size);
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        float t = (turn(u, v) + 1) * 0.5f * staves, part = t - std::floor(t);
        float gap = ramp(0.10f, 0.0f, std::min(part, 1 - part));
        Grain grain =
            grainAt(fine, v, turn(u, v) * 0.4f, noise.at(static_cast<int>(t), 1), {4, 100});
        float iron = 1 - ramp(-1.5f, 1.5f, hoop(v));
        float wood = 4 * (1 - gap) + 0.8f * grain.height;
        float band = 9 + fine.clouds(u, v, {30, 30}, 3) + 3 * ramp(1.5f, -2.5f, rivet(u, v));
        return mix(wood, band, iron);
    });
    relief.paint(canvas, [&](float u, float v) {
        float t = (turn(u, v) + 1) * 0.5f * staves, part = t - std::floor(t);
        float stave = noise.at(static_cast<int>(t), 1);
        Grain grain = grainAt(fine, v, turn(u, v) * 0.4f, stave, {4, 100});
        Colour wood = woodColour(grain.tone, 0.5f * stave) * mix(0.85f, 1.1f, stave);
        wood = wood * mix(0.8f, 1.15f, noise.clouds(u, v, {6, 4}, 5));
        wood = mix(wood, palette::night, 0.85f * ramp(0.07f, 0.0f, std::min(part, 1 - part)));
        Colour iron =
            mix(ironColour(noise, u, v), palette::steel * 0.9f, 0.5f * ramp(0.5f, -2, rivet(u, v)));
        wood = mix(wood, iron, coverage(hoop(v)));
        // A round thing: lit from the upper left, dark where it turns away, a faint light behind.
        float x = (u - 0.5f) / bulge(v);
        float round = std::sqrt(std::max(0.0f, 1 - x * x));
        float shade =
            0.30f + 0.85f * std::max(0.0f, 0.88f * round - 0.42f * x) + 0.12f * ramp(0.8f, 1.0f, x);
        float rim = ramp(0.965f, 1.0f, v);
        Colour c = wood * shade + palette::moonlight * (0.25f * rim);
        c = c * (1 - 0.6f * ramp(0.09f, 0.0f, v));
        float corner =
            shape::box((u - 0.5f) * size, (v - 0.5f) * size, bulge(v) * size, 0.497f * size, 6);
        return c.fade(coverage(corner));
    });
}

void paintWheel(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed), fine(seed + 100);
    float size = static_cast<float>(canvas.width());
    constexpr float spokes = 8, tau = 6.2831853f;
    struct Place {
        float rim, tyre, spoke, hub, cap; // signed distances in pixels, below 0 inside
        float turn, along;                // round the axle and outward, 0 to 1
    };
    auto placeAt = [&](float u, float v) {
        float x = u - 0.5f, y = v - 0.5f, r = std::hypot(x, y);
        float turn = std::atan2(y, x) / tau + 0.5f;
        float slot = turn * spokes - std::floor(turn * spokes) - 0.5f;
        float across =
            std::abs(r * std::sin(slot / spokes * tau)) - shape::mix(0.040f, 0.028f, 2 * r);
        return Place{(std::abs(r - 0.405f) - 0.058f) * size,
                     (std::abs(r - 0.478f) - 0.019f) * size,
                     std::max(across, r - 0.40f) * size,
                     (r - 0.125f) * size,
                     (r - 0.060f) * size,
                     turn,
                     r};
    };
    Relief relief(canvas.width(), canvas.height(), [&](float u, float v) {
        Place p = placeAt(u, v);
        Grain lying = grainAt(fine, p.turn, p.along, 0.3f, {12, 60});
        Grain outward = grainAt(fine, p.along, p.turn, 0.6f, {5, 160});
        float height = -4;
        height = std::max(height, mix(5.5f + 0.8f * outward.height, -4, ramp(-3, 1, p.spoke)));
        height = std::max(height, mix(7.5f + 0.8f * lying.height, -4, ramp(-3, 1, p.rim)));
        height = std::max(height, mix(9, -4, ramp(-3, 1, p.tyre)));
        height = std::max(height, mix(10.0f, -4, ramp(-6, 1, p.hub)));
        return std::max(height, mix(13.0f, -4, ramp(-6, 1, p.cap)));
    });
    relief.paint(canvas, [&](float u, float v) {
        Place p = placeAt(u, v);
        // The rim is built of felloes; a dark joint between every other pair of spokes.
        float felloe = p.turn * spokes / 2 - std::floor(p.turn * spokes / 2);
        float joint = std::min(felloe, 1 - felloe) / spokes * 2 * tau * p.along * size;
        Colour wood = woodColour(grainAt(fine, p.along, p.turn, 0.6f, {5, 160}).tone, 0.2f);
        if (p.rim < 0) {
            wood = woodColour(grainAt(fine, p.turn, p.along, 0.3f, {12, 60}).tone, 0.35f) * 1.1f;
            wood = mix(wood, palette::night, 0.85f * ramp(2.2f, 0.6f, joint));
        }
        wood = mix(wood, woodColour(noise.clouds(u, v, {20, 20}, 3), 0.4f), coverage(p.hub));
        Colour iron = ironColour(noise, u, v);
        wood = mix(wood, iron, std::max(coverage(p.tyre), coverage(p.cap)));
        float edge = std::min({p.rim, p.tyre, p.spoke, p.hub});
        return wood.fade(coverage(edge));
    });
}
