#pragma once

#include "So_Addons/So_Addition.h"

#include <cstdint>
#include <string>
#include <vector>

class GraphicsObject;
class PhysicsObject;
class Player;
class TextReader;
class TextWriter;

/// Class codes, the first value of a stored object.
namespace sceneObjectType {
constexpr int plain = 0;
constexpr int withoutPhysics = -1;
constexpr int player = 1;
constexpr int destruction = 2;
constexpr int forcefield = 3;
constexpr int testPlayer = 4;
constexpr int evilPlayer = 5;
} // namespace sceneObjectType

/// What the making of an object hands over.
struct SceneParts {
    PhysicsObject* physics = nullptr; ///< May be null.
    GraphicsObject* graphics = nullptr;
    int type = sceneObjectType::plain;
};

/// The bracket around one graphics object, at most one physics object, and an ordered list of
/// additions that give it its meaning. Owned by `SceneManager` once added there; the graphics and
/// physics objects are owned by their modules.
class SceneObject {
public:
    explicit SceneObject(const SceneParts& parts);
    /// Deletes the additions and nothing else.
    virtual ~SceneObject();
    SceneObject(const SceneObject&) = delete;
    SceneObject& operator=(const SceneObject&) = delete;

    /// Appends the object's record.
    virtual void save(TextWriter& stream) const;
    /// World units. With a body its origin is moved, nothing else.
    virtual void moveBy(float dx, float dy);
    /// One step: runs the additions in order, those included that are added meanwhile.
    virtual void update();
    /// Takes hit points from the first `HealthAdd`, if there is one.
    virtual void hurt(int amount);
    virtual Player* asPlayer() { return nullptr; }

    /// Takes the addition over. All but `HealthAdd` need a physics object and make it collect its
    /// contacts.
    void addAddition(So_Addition* addition);
    /// Out of the list at once; deleted when the additions that run just now are through.
    void removeAddition(So_Addition* addition);
    void clearAdditions(); ///< The same for all of them.
    So_Addition* findAddition(AdditionType wanted) const;

    /// Whether one of the additions is an `ObjectNameAdd` of exactly that name.
    bool hasName(const std::string& name) const;

    /// Whether the object touches one of that name, or anything that answers contacts.
    bool touchesObject(const std::string& name) const;
    bool isTouching() const;

    /// Breaks the object into loose pieces, which become debris. The object itself goes at the end
    /// of the step. Graphics that are neither polygon nor group do not break: they stay where they
    /// are, and so does the object.
    void shatter();

    /// What is drawn and stored for the object, whole or shattered; null once it has broken.
    GraphicsObject* visibleGraphics() const;

    PhysicsObject* physicsObject;   ///< May be null.
    GraphicsObject* graphicsObject; ///< Null only after `shatter`.
    int type;
    int number; ///< 0 without physics, -1 if static, else counted up.
    /// Tells objects apart where chance is to differ from one to the other and to be the same in
    /// every run.
    const std::uint32_t seed;
    std::uint32_t age = 0;               ///< Steps in the physics world.
    bool contactNoise = true;            ///< Whether collisions thud and roll.
    bool additionsWork = false;          ///< Whether it ever had one that is more than a name.
    int waterCount = 0;                  ///< Bodies of water that hold the object.
    std::vector<So_Addition*> additions; ///< Owned.

private:
    GraphicsObject* unbroken = nullptr; // graphics that shatter left in place; not owned
};
