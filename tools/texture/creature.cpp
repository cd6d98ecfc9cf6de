// The one that is played: a round soft body with one eye, two legs and an arm. All pictures look
// left; the game mirrors them. Body and legs share one box of units about the character's centre,
// so that the parts lie over each other as they are painted here.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::mix;
using shape::ramp;

namespace {

constexpr Colour furDeep{0.150f, 0.110f, 0.225f};
constexpr Colour fur{0.410f, 0.330f, 0.550f};
constexpr Colour furLight{0.700f, 0.620f, 0.850f};
constexpr Colour rimLight{0.970f, 0.940f, 1.000f};
constexpr Colour iris{0.90f, 0.54f, 0.20f};
constexpr Colour rose{0.86f, 0.42f, 0.46f};

// The game shows a part without the outermost fortieth of its picture.
constexpr float margin = 0.025f;

struct Units {
    float half;
    float perPixel;
    int width, height;

    Units(const Canvas& canvas, float halfSize)
        : half(halfSize),
          perPixel(2 * halfSize / ((1 - 2 * margin) * static_cast<float>(canvas.width()))),
          width(canvas.width()),
          height(canvas.height()) {}

    float x(int column) const {
        return (static_cast<float>(column) + 0.5f - static_cast<float>(width) / 2) * perPixel;
    }
    float y(int row) const {
        return (static_cast<float>(row) + 0.5f - static_cast<float>(height) / 2) * perPixel;
    }
    float coverage(float distance) const { return shape::coverage(distance / perPixel); }
};

// Calls `paint(x, y)` for each pixel and lays the colour that it gives over the canvas.
template <class Paint>
void layer(Canvas& canvas, const Units& units, const Paint& paint) {
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            canvas.over(column, row, paint(units.x(column), units.y(row)));
        }
    }
}

// Fur lies in tufts that point away from the middle and droop.
float furAt(const Noise& noise, float x, float y) {
    float angle = std::atan2(y, x) / 6.2831853f + 0.5f;
    float out = std::hypot(x, y) / 32;
    float bend = 0.012f * noise.gradient(angle, out, {9, 8});
    return 0.6f * noise.value(angle + bend, out, {64, 10}) +
           0.4f * noise.value(angle + bend, out, {120, 16});
}

// A light from above on something round: `height` is 1 at its top and -1 at its bottom, `depth`
// how far below its edge a place lies, in units.
Colour furColour(float height, float depth, float tuft) {
    Colour c = mix(furDeep, fur, ramp(-1.0f, 0.35f, height));
    c = mix(c, furLight, 0.55f * ramp(0.1f, 1.05f, height));
    c = c * mix(0.72f, 1.22f, tuft);
    float rim = ramp(1.9f, 0.1f, depth) * mix(0.46f, 1.0f, ramp(-0.5f, 0.8f, height));
    return mix(c, rimLight, rim * mix(0.75f, 1.0f, tuft));
}

// The eye is nearly half of the face, and looks ahead and a little up: it hopes.
void paintEye(Canvas& canvas, const Units& units, const Noise& noise) {
    constexpr float ex = -3.6f, ey = 4.3f, radius = 6.0f;
    constexpr float px = ex - 1.9f, py = ey + 0.35f;
    // A soft socket, then the ball.
    layer(canvas, units, [&](float x, float y) {
        return furDeep.fade(0.85f * ramp(1.5f, 0.0f, shape::disc(x - ex, y - ey, radius)));
    });
    layer(canvas, units, [&](float x, float y) {
        float d = shape::disc(x - ex, y - ey, radius);
        Colour ball = mix(palette::bone, Colour{1.0f, 0.98f, 0.94f}, ramp(1.2f, -3.0f, d));
        ball = mix(ball, Colour{0.55f, 0.50f, 0.66f}, 0.85f * ramp(1.8f, 6.2f, y - ey));
        ball = mix(ball, Colour{0.62f, 0.55f, 0.66f}, 0.55f * ramp(-1.6f, 0.1f, d));
        return ball.fade(units.coverage(d));
    });
    layer(canvas, units, [&](float x, float y) {
        float d = shape::disc(x - px, y - py, 4.0f);
        float spoke = noise.value(std::atan2(y - py, x - px) / 6.2831853f + 0.5f, 0.5f, {40, 1});
        Colour c = mix(iris, iris * 0.55f, ramp(-1.0f, 0.9f, (y - py) / 3.5f));
        c = mix(c, Colour{1.0f, 0.78f, 0.42f}, 0.75f * ramp(0.2f, -3.0f, y - py)) *
            mix(0.85f, 1.12f, spoke);
        c = mix(c, furDeep * 0.6f, ramp(-0.9f, -0.1f, d));
        return c.fade(units.coverage(d));
    });
    layer(canvas, units, [&](float x, float y) {
        return Colour{0.02f, 0.018f, 0.04f, units.coverage(shape::disc(x - px, y - py, 2.75f))};
    });
    layer(canvas, units, [&](float x, float y) {
        float big = units.coverage(shape::ellipse(x - px + 1.1f, y - py - 1.55f, 1.4f, 1.2f));
        float small = 0.7f * units.coverage(shape::disc(x - px - 1.25f, y - py + 1.4f, 0.5f));
        return Colour{1, 1, 1, std::max(big, small)};
    });
    // The lid comes down towards the back, which makes the look a wistful one.
    layer(canvas, units, [&](float x, float y) {
        float ball = shape::disc(x - ex, y - ey, radius + 0.55f);
        float lid = (ey + 4.7f - 0.13f * (x - ex) - 0.045f * (x - ex) * (x - ex)) - y;
        Colour c = mix(fur, furLight, 0.5f * ramp(1.0f, 4.0f, y - ey - 2.5f));
        c = mix(c, furDeep * 0.7f, ramp(-0.9f, -0.1f, lid));
        return c.fade(units.coverage(std::max(ball, lid)));
    });
}

void paintMouth(Canvas& canvas, const Units& units) {
    layer(canvas, units, [&](float x, float y) {
        float mx = x + 5.4f, my = y + 4.5f;
        float curve = my - 0.20f * mx * mx + 0.10f * mx;
        float line = std::max(std::abs(curve) - 0.42f, std::abs(mx) - 2.1f);
        float lip = std::max(std::abs(curve + 0.85f) - 0.35f, std::abs(mx) - 1.5f);
        Colour c = mix(furLight.fade(0.5f * units.coverage(lip)), Colour{0.03f, 0.02f, 0.05f},
                       units.coverage(line));
        return c.fade(std::max(0.5f * units.coverage(lip), units.coverage(line)));
    });
    layer(canvas, units, [&](float x, float y) {
        float blush = ramp(1.3f, -0.6f, shape::ellipse(x + 0.9f, y + 3.7f, 1.7f, 1.0f));
        return rose.fade(0.38f * blush);
    });
}

// The near leg has a haunch that lies on the body and melts into its fur; the far leg comes out
// of the shade under it. Both reach well into the body, since a leap pulls them ten units out.
void paintLeg(Canvas& canvas, std::uint32_t seed, float hipX, bool near) {
    Noise noise(seed);
    Units units(canvas, 15);
    layer(canvas, units, [&](float x, float y) {
        float thigh = shape::capsule(x, y, hipX + 2.2f, 2.6f, hipX + 0.2f, -7.0f, 2.3f, 3.1f);
        float shin = shape::capsule(x, y, hipX + 0.3f, -6.0f, hipX - 0.1f, -11.2f, 3.1f, 2.2f);
        float foot = shape::ellipse(x - hipX + 1.5f, y + 11.7f, 4.7f, 2.45f);
        float leg = shape::blend(std::min(thigh, shin), foot, 1.8f);
        float d = std::max(leg, -14.1f - y);
        float up = ramp(-10.0f, -5.5f, y); // from the foot to what the body covers
        float height = ramp(-14.2f, -9.0f, y) * 2 - 1;
        Colour c = furColour(mix(0.6f * height, -0.30f, up), mix(-d, 4.0f, up),
                             furAt(noise, x - hipX, y + 16));
        float toe = std::min(std::abs(x - hipX + 4.9f), std::abs(x - hipX + 3.2f)) - 0.2f;
        c = mix(c, furDeep * 0.5f, 0.75f * units.coverage(toe) * ramp(-11.3f, -12.6f, y));
        if (!near) {
            return (mix(c, furDeep, 0.35f) * mix(0.72f, 0.62f, up)).fade(units.coverage(d));
        }
        float melt = ramp(4.6f, 1.4f, y) * mix(1.0f, ramp(0.2f, -1.5f, d), up);
        return c.fade(std::min(units.coverage(d), melt));
    });
}

// Years take the colour out of fur, and leave the eye some of its own.
void turnGrey(Canvas& canvas) {
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            Colour& c = canvas.at(column, row);
            float light = 0.30f * c.r + 0.50f * c.g + 0.20f * c.b;
            c = mix(c, Colour{light * 1.06f, light * 1.06f, light * 1.10f, c.a}, 0.80f);
        }
    }
}

// A lid that has grown heavy, a brow over it, and a beard that has seen soup.
void paintAge(Canvas& canvas, const Units& units, const Noise& noise) {
    const Colour shadow{0.20f, 0.20f, 0.24f}, silver{0.86f, 0.87f, 0.92f};
    layer(canvas, units, [&](float x, float y) {
        float ball = shape::disc(x + 3.6f, y - 4.3f, 6.5f);
        float lid = 4.6f - 0.10f * (x + 3.6f) - y;
        float fine = noise.value(x / 32 + 0.5f, y / 32 + 0.5f, {90, 20});
        Colour c = mix(shadow, silver, 0.24f + 0.35f * ramp(4.0f, 10.0f, y) + 0.12f * fine);
        c = mix(c, shadow * 0.5f, ramp(-0.9f, -0.1f, lid));
        return c.fade(units.coverage(std::max(ball, lid)));
    });
    struct Tuft {
        float ax, ay, bx, by, thick;
    };
    constexpr Tuft tufts[] = {
        {-9.5f, 8.6f, -3.4f, 10.4f, 1.3f},   {-4.0f, 10.3f, 2.6f, 9.3f, 1.4f},
        {1.0f, 9.8f, 4.6f, 7.6f, 0.9f},      {-10.2f, -4.6f, -11.0f, -9.8f, 2.0f},
        {-7.6f, -5.8f, -8.6f, -12.6f, 2.4f}, {-4.6f, -6.2f, -5.4f, -13.4f, 2.4f},
        {-1.6f, -6.0f, -2.4f, -11.2f, 2.2f}, {-9.0f, -3.2f, -3.0f, -3.6f, 1.0f}};
    layer(canvas, units, [&](float x, float y) {
        float d = 9.0f;
        for (const Tuft& t : tufts) {
            d = std::min(d, shape::capsule(x, y, t.ax, t.ay, t.bx, t.by, t.thick, 0.35f));
        }
        float hair = noise.value(x / 32 + 0.5f + 0.02f * y, y / 32 + 0.5f, {72, 7});
        Colour c =
            mix(shadow, silver, mix(0.35f, 1.0f, hair) * mix(0.7f, 1.0f, ramp(0.0f, -0.9f, d)));
        return c.fade(units.coverage(d));
    });
}

} // namespace

// The old one is one picture with legs and a stick, as it only stands and speaks.
void paintOldOne(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    Units units(canvas, 16);
    paintFarLeg(canvas, seed);
    paintBody(canvas, seed);
    paintNearLeg(canvas, seed);
    turnGrey(canvas);
    paintAge(canvas, units, noise);
    layer(canvas, units, [&](float x, float y) {
        float stick = shape::capsule(x, y, -13.2f, -14.6f, -12.4f, 1.0f, 0.75f, 0.85f);
        float knob = shape::disc(x + 12.4f, y - 1.4f, 1.7f);
        Colour c = palette::timber * mix(0.65f, 1.35f, ramp(-0.6f, 0.7f, -x - 12.6f));
        return c.fade(units.coverage(std::min(stick, knob)));
    });
}

void paintBody(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    Units units(canvas, 16);
    layer(canvas, units, [&](float x, float y) {
        float cy = y - 2.3f;
        float angle = std::atan2(cy, x) / 6.2831853f + 0.5f;
        float ragged = 0.55f * (noise.value(angle, 0, {70, 1}) - 0.5f) +
                       0.5f * noise.gradient(angle, 0.3f, {14, 1});
        float d = shape::ellipse(x, cy, 12.6f, 11.4f) + ragged;
        // A forelock, blown back.
        float tuft = std::min({shape::capsule(x, y, -1.2f, 12.0f, 0.4f, 15.7f, 1.7f, 0.2f),
                               shape::capsule(x, y, 0.6f, 12.2f, 3.3f, 15.6f, 1.7f, 0.2f),
                               shape::capsule(x, y, 2.2f, 12.0f, 6.0f, 14.4f, 1.5f, 0.2f)});
        d = shape::blend(d, tuft, 0.8f);
        Colour c = furColour(cy / 11.4f - 0.12f * x / 12, -d, furAt(noise, x, cy));
        // The belly is softer and lighter.
        c = mix(c, furLight * 0.92f,
                0.42f * ramp(7.5f, 1.0f, std::hypot((x + 3.5f) * 0.8f, (y + 4.6f) * 1.25f)));
        return c.fade(units.coverage(d));
    });
    paintEye(canvas, units, noise);
    paintMouth(canvas, units);
}

void paintFarLeg(Canvas& canvas, std::uint32_t seed) {
    paintLeg(canvas, seed, -4.4f, false);
}

void paintNearLeg(Canvas& canvas, std::uint32_t seed) {
    paintLeg(canvas, seed, 4.6f, true);
}

// The arm stands upright and turns about its lower end, which lies in the middle of the body and
// so fades out there: the arm seems to come out of the fur.
void paintArm(Canvas& canvas, std::uint32_t seed) {
    Noise noise(seed);
    constexpr float length = 18, width = 7;
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            float x =
                ((static_cast<float>(column) + 0.5f) / static_cast<float>(canvas.width()) - 0.5f) *
                width;
            float y =
                (static_cast<float>(row) + 0.5f) / static_cast<float>(canvas.height()) * length;
            float pixel = width / static_cast<float>(canvas.width());
            float ragged = 0.35f * noise.gradient(x > 0 ? 0.3f : 0.7f, y / length, {4, 14});
            float arm = shape::capsule(x, y, 0, 4, 0, 12, 2.5f, 1.75f) + ragged;
            float hand = shape::ellipse(x, y - 13.5f, 2.45f, 2.5f);
            float thumb = shape::capsule(x, y, 1.2f, 12.2f, 2.7f, 13.4f, 0.8f, 0.65f);
            float d = shape::blend(shape::blend(arm, hand, 1.5f), thumb, 0.5f);
            Colour c = furColour(0.02f * y, -1.9f * d, furAt(noise, x, y + 4));
            float finger = std::abs(std::abs(x) - 0.85f) - 0.16f;
            c = mix(c, furDeep, 0.7f * shape::coverage(finger / pixel) * ramp(14.0f, 15.0f, y));
            // A shade round it lifts the arm off the body.
            Colour shade = furDeep.fade(0.55f * ramp(0.9f, -0.2f, d));
            float shoulder = ramp(3.0f, 8.0f, y);
            canvas.over(column, row, shade.fade(shade.a * shoulder));
            canvas.over(column, row, c.fade(shape::coverage(d / pixel) * shoulder));
        }
    }
}
