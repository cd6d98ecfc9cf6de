// What a game pad does, told by marks: no word of it has to be translated. All places are those of
// the screen, where the picture is 600 by 350 units.

#include "Noise.h"
#include "Recipes.h"
#include "Shape.h"

using shape::mix;
using shape::ramp;

namespace {

constexpr float shownWidth = 600, shownHeight = 350;
constexpr Colour line{0.50f, 0.55f, 0.64f};
constexpr Colour mark = palette::bone;
constexpr Colour shell{0.115f, 0.130f, 0.175f};
constexpr Colour shellLight{0.30f, 0.34f, 0.42f};

struct Place {
    float x, y;
};

// The parts of the pad.
constexpr Place leftStick{235, 172}, rightStick{338, 128}, cross{262, 126};
constexpr Place faceMiddle{382, 176};
constexpr float faceReach = 22;
constexpr Place smallLeft{290, 186}, smallRight{325, 186};

// The pen: units, and how far a pixel is.
struct Pen {
    Canvas& canvas;
    float unitsX, unitsY;

    explicit Pen(Canvas& onto)
        : canvas(onto),
          unitsX(shownWidth / static_cast<float>(onto.width())),
          unitsY(shownHeight / static_cast<float>(onto.height())) {}

    /// Lays the colour over everything inside of the distance function, in units.
    template <class Distance>
    void fill(Colour colour, const Distance& distance) const {
        paint([&](float x, float y) {
            return colour.fade(colour.a * shape::coverage(distance(x, y) / unitsY));
        });
    }

    template <class Paint>
    void paint(const Paint& colourAt) const {
        for (int row = 0; row < canvas.height(); ++row) {
            for (int column = 0; column < canvas.width(); ++column) {
                canvas.over(column, row,
                            colourAt((static_cast<float>(column) + 0.5f) * unitsX,
                                     (static_cast<float>(row) + 0.5f) * unitsY));
            }
        }
    }

    void stroke(Colour colour, Place a, Place b, float thick) const {
        fill(colour, [=](float x, float y) {
            return shape::capsule(x, y, a.x, a.y, b.x, b.y, thick, thick);
        });
    }
    void disc(Colour colour, Place at, float radius) const {
        fill(colour, [=](float x, float y) { return shape::disc(x - at.x, y - at.y, radius); });
    }
    void ring(Colour colour, Place at, float radius, float thick) const {
        fill(colour, [=](float x, float y) {
            return std::abs(shape::disc(x - at.x, y - at.y, radius)) - thick;
        });
    }
    void box(Colour colour, Place at, float halfWidth, float halfHeight, float corner) const {
        fill(colour, [=](float x, float y) {
            return shape::box(x - at.x, y - at.y, halfWidth, halfHeight, corner);
        });
    }
    /// A head that points along `dx`, `dy`, of unit length.
    void arrowHead(Colour colour, Place tip, float dx, float dy, float size) const {
        for (float side : {-1.0f, 1.0f}) {
            Place back{tip.x - dx * size - side * dy * size * 0.8f,
                       tip.y - dy * size + side * dx * size * 0.8f};
            stroke(colour, tip, back, 2.2f);
        }
    }
};

float shellAt(float x, float y) {
    x = std::abs(x - 307.5f);
    float middle = shape::box(x, y - 168, 92, 44, 30);
    float grip = shape::capsule(x, y, 88, 160, 128, 78, 44, 24);
    return shape::blend(shape::blend(middle, grip, 26), shape::disc(x - 72, y - 172, 50), 20);
}

void paintShell(const Pen& pen, const Noise& noise) {
    constexpr float shoulderX = 82;
    for (float side : {-1.0f, 1.0f}) { // what lies behind: triggers, and shoulders before them
        pen.box(shellLight * 0.55f, {307.5f + side * shoulderX, 236}, 25, 17, 12);
        pen.box(shellLight * 0.85f, {307.5f + side * shoulderX, 216}, 32, 10, 7);
    }
    pen.paint([&](float x, float y) {
        float d = shellAt(x, y);
        Colour c = mix(shell * 0.65f, shell * 1.35f, ramp(60, 215, y)) *
                   mix(0.85f, 1.15f, noise.clouds(x / shownWidth, y / shownHeight, {60, 35}, 4));
        float up = std::clamp((shellAt(x, y + 4) - shellAt(x, y - 4)) / 8, -1.0f, 1.0f);
        c = mix(c, shellLight, ramp(-7, -0.5f, d) * mix(0.25f, 1.0f, ramp(-0.2f, 0.9f, up)));
        return c.fade(shape::coverage(d / pen.unitsY));
    });
    for (Place stick : {leftStick, rightStick}) {
        pen.disc(palette::night, stick, 25);
        pen.ring(shellLight, stick, 25, 1.2f);
        pen.disc(shellLight * 0.8f, stick, 16);
        pen.disc(shell, stick, 12);
    }
    pen.box(palette::night, cross, 19, 6.5f, 2);
    pen.box(palette::night, cross, 6.5f, 19, 2);
    for (Place button : {smallLeft, smallRight}) {
        pen.disc(mark * 0.85f, button, 6);
    }
}

// The marks. Each stands about a middle, some 20 units to each side.

void markWalk(const Pen& pen, Place at) {
    pen.stroke(mark, {at.x - 17, at.y}, {at.x + 17, at.y}, 2.2f);
    pen.arrowHead(mark, {at.x - 20, at.y}, -1, 0, 9);
    pen.arrowHead(mark, {at.x + 20, at.y}, 1, 0, 9);
}

void markJump(const Pen& pen, Place at) {
    pen.stroke(mark, {at.x - 18, at.y - 18}, {at.x + 18, at.y - 18}, 2.0f);
    pen.disc(mark, {at.x, at.y - 6}, 6);
    pen.stroke(mark, {at.x, at.y + 4}, {at.x, at.y + 17}, 2.2f);
    pen.arrowHead(mark, {at.x, at.y + 20}, 0, 1, 9);
}

void markLook(const Pen& pen, Place at) {
    pen.ring(mark, at, 11, 2.0f);
    pen.disc(mark, at, 3.6f);
    for (float angle : {0.0f, 1.5708f, 3.1416f, 4.7124f}) {
        float c = std::cos(angle), s = std::sin(angle);
        pen.stroke(mark, {at.x + 15 * c, at.y + 15 * s}, {at.x + 21 * c, at.y + 21 * s}, 2.0f);
    }
}

// A hand about a stone.
void markGrab(const Pen& pen, Place at) {
    pen.disc(line * 0.8f, at, 10);
    pen.ring(mark, at, 10, 1.4f);
    for (float shift : {-7.0f, 0.0f, 7.0f}) {
        pen.stroke(palette::night, {at.x + shift, at.y + 16}, {at.x + shift * 0.8f, at.y + 3},
                   4.6f);
        pen.stroke(mark, {at.x + shift, at.y + 16}, {at.x + shift * 0.8f, at.y + 3}, 2.9f);
    }
    pen.stroke(mark, {at.x - 9, at.y + 18}, {at.x + 9, at.y + 18}, 4.5f);
    pen.stroke(mark, {at.x - 13, at.y + 15}, {at.x - 13, at.y - 1}, 3.0f);
}

// A stone on its way.
void markThrow(const Pen& pen, Place at) {
    pen.disc(mark, {at.x + 13, at.y + 7}, 7.5f);
    constexpr float starts[] = {9, 2, -5};
    for (float drop : starts) {
        float length = drop == 2 ? 26.0f : 18.0f;
        pen.stroke(mark, {at.x + 1, at.y + drop + 1}, {at.x + 1 - length, at.y + drop - 7}, 1.7f);
    }
}

void markPause(const Pen& pen, Place at) {
    pen.box(mark, {at.x - 7, at.y}, 3.6f, 14, 1.5f);
    pen.box(mark, {at.x + 7, at.y}, 3.6f, 14, 1.5f);
}

/// From a mark to the part that does it, by way of a bend that is neither of them.
void lead(const Pen& pen, Place from, Place bend, Place to) {
    pen.stroke(line, from, bend, 1.0f);
    pen.stroke(line, bend, to, 1.0f);
    pen.disc(line, to, 3.2f);
}

void paintMarks(const Pen& pen) {
    markWalk(pen, {70, 172});
    lead(pen, {98, 172}, {160, 172}, {220, 172});
    markLook(pen, {338, 34});
    lead(pen, {338, 60}, {338, 90}, {338, 118});
    markPause(pen, {307.5f, 305});
    lead(pen, {300, 284}, {290, 270}, {290, 190});
    lead(pen, {315, 284}, {325, 270}, {325, 190});
    markGrab(pen, {70, 285});
    lead(pen, {98, 285}, {190, 285}, {222, 243});
    markThrow(pen, {70, 232});
    lead(pen, {98, 228}, {150, 228}, {205, 217});
    markGrab(pen, {545, 285});
    lead(pen, {517, 285}, {425, 285}, {393, 243});
    markThrow(pen, {545, 232});
    lead(pen, {511, 232}, {460, 232}, {412, 217});
    lead(pen, {511, 228}, {440, 205}, {385, 200});
    markJump(pen, {545, 120});
    lead(pen, {518, 120}, {455, 130}, {406, 168});
    lead(pen, {518, 116}, {450, 116}, {388, 148});
}

// The four buttons under the right thumb: the lower and the right one leap, the others throw.
void paintFace(const Pen& pen) {
    const Place low{faceMiddle.x, faceMiddle.y - faceReach},
        high{faceMiddle.x, faceMiddle.y + faceReach};
    const Place right{faceMiddle.x + faceReach, faceMiddle.y},
        left{faceMiddle.x - faceReach, faceMiddle.y};
    for (Place button : {low, right}) {
        pen.disc(palette::rust * 1.5f, button, 9.5f);
        pen.ring(mark, button, 9.5f, 1.2f);
    }
    for (Place button : {high, left}) {
        pen.disc(palette::slate * 0.8f, button, 9.5f);
        pen.ring(mark, button, 9.5f, 1.2f);
    }
}

// All of it is drawn in chalk.
void addGrain(Canvas& canvas, const Noise& noise) {
    for (int row = 0; row < canvas.height(); ++row) {
        for (int column = 0; column < canvas.width(); ++column) {
            Colour& c = canvas.at(column, row);
            c = c * mix(0.86f, 1.06f, noise.at(column, row));
        }
    }
}

} // namespace

void paintPadMap(Canvas& canvas, std::uint32_t seed) {
    const Noise noise(seed);
    const Pen pen(canvas);
    canvas.fill([](float, float) { return palette::night.fade(0); });
    paintShell(pen, noise);
    paintFace(pen);
    paintMarks(pen);
    addGrain(canvas, noise);
}
