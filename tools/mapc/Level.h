#pragma once

#include "Geometry.h"
#include "TiledMap.h"

#include "sceneManager/PlayerStatistics.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace mapc {

/// Something that a designer has to mend.
struct Problem {
    int object;       ///< Id of the editor's object, 0 for the map as a whole.
    std::string name; ///< Its name, may be empty.
    std::string reason;
};

/// Frames of an animated texture, row by row from the top left.
struct SpriteSheet {
    unsigned columns = 1;
    unsigned rows = 1;
    unsigned delay = 4; ///< Steps a frame.
    bool oneShot = false;
};

enum class TexcoordMode { bounds = 0, world = 1, mixed = 2 };

struct Appearance {
    std::string texture; ///< File name; empty for plain colour.
    Colour colour;
    float z = 0.0F;
    float parallax = 1.0F;
    TexcoordMode texcoordMode = TexcoordMode::world;
    bool castsShadow = true;
    std::optional<SpriteSheet> sheet;
};

enum class ShapeKind { disc, box, convex, mesh };

/// An area around its own origin.
struct Shape {
    ShapeKind kind = ShapeKind::box;
    Outline outline;     ///< Clockwise; of a mesh, three points a triangle.
    float radius = 0.0F; ///< Of a disc.
    Point half;          ///< Half extents of a box.
};

/// One drawn polygon, and where `solid` also a shape of the body.
struct Part {
    int id = 0;
    Shape shape;
    Pose pose; ///< In the world.
    Appearance look;
    bool solid = false;
};

struct Body {
    float mass = 0.0F; ///< 0 for a body that stands still.
    float friction = 0.5F;
    float restitution = 0.0F;
    Point velocity;
    bool answersContact = true;
    int kind = 1; ///< Collision category of the engine, 0 to 4.
    float waterFactor = 0.7F;
};

/// Hurts what it touches with at least that impulse.
struct Damage {
    int amount = 0;
    float threshold = 0.0F;
};

struct DialogLine {
    std::string text; ///< The line itself, or "qq" and the number of a language line.
    int steps = 0;    ///< How long it stays.
};

/// What the protagonist says on touching the object.
struct Dialog {
    std::vector<DialogLine> lines;
    bool once = false;
    bool locked = false; ///< Says nothing until a script unlocks it.
};

/// A light that an object carries.
struct Light {
    float size = 0.0F; ///< Half the side of its square.
    Colour colour;     ///< Alpha is its strength.
    int flickerPeriod = 0;
    bool castsShadows = true;
    Point place; ///< In the object's frame.
    std::string texture;
};

/// A source of particles that an object carries: the engine's record, field by field.
struct Emitter {
    float size = 0.0F; ///< Half the side at birth.
    float z = 0.0F;
    std::string texture;
    float life = 0.0F; ///< Steps.
    Colour colour;     ///< At birth.
    float fade = 0.0F; ///< Steps at the end of life.
    float endSize = 0.0F;
    Colour endColour;
    float speed = 0.0F;  ///< Units a second, along the object's up.
    Point gravity;       ///< Units a second, added in each step.
    float spin = 0.0F;   ///< Radians a second, either way.
    float spread = 0.0F; ///< Half the angle of the cone, radians.
    float rate = 0.0F;   ///< Particles a step.
    bool additive = false;
};

/// What makes a box a body of water.
enum class Surface { still, waves };

/// What makes a disc a monster.
struct Monster {
    PlayerStatistics statistics;
    int state = 1; ///< The engine's `EvilState`.
    bool eyesLit = false;
    std::vector<Point> waypoints; ///< Of its centre, in the world; walked in a ring.
};

/// A scene object to be.
struct LevelObject {
    int id = 0;
    std::string name;
    Pose pose; ///< Of the body; the frame that compound shapes and drawn polygons are told in.
    std::vector<Part> parts;
    std::optional<Body> body;
    std::optional<Point> force; ///< Makes it a force field.
    std::optional<Surface> water;
    std::vector<std::string> scripts;
    std::optional<int> health;
    std::optional<Damage> damage;
    std::optional<float> forcePower; ///< Along its own up axis, in units of the world's gravity.
    std::optional<Dialog> dialog;
    std::vector<Light> lights;
    std::vector<Emitter> emitters;
    std::optional<Monster> monster;
};

constexpr int worldIndex = -1; ///< In place of an object: the joint's other side is the world.

/// Turning about a point. Angles and speeds are those of `a` against `b`, clockwise.
struct HingeJoint {
    int a = worldIndex;
    int b = worldIndex;
    Point pivotA, pivotB;              ///< In the frames of the bodies.
    float lower = 1.0F, upper = -1.0F; ///< Radians; free if crossed.
    std::optional<float> motorSpeed;   ///< Radians a second.
    float motorImpulse = 0.0F;
};

/// Sliding of `b` in the frame of `a`, in world units.
struct SliderJoint {
    int a = worldIndex;
    int b = worldIndex;
    Point frameA, frameB;
    float turnLower = 0.0F, turnUpper = 0.0F; ///< Radians, clockwise.
    Point lower, upper;
    std::optional<Point> motorSpeed; ///< Units a second.
    Point motorForce;
    bool spring = false;
    float restAngle = 0.0F; ///< Turn at which it was drawn, as the joint measures it.
};

using Joint = std::variant<HingeJoint, SliderJoint>;

/// A level in the engine's terms: world units, y up, radians counter-clockwise.
struct Level {
    std::vector<LevelObject> objects;
    std::vector<Joint> joints;
    Colour ambient;
    std::string music;
};

} // namespace mapc
