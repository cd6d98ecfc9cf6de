#pragma once

#include <BulletCollision/CollisionDispatch/btCollisionObject.h>

#include <optional>

class PhysicsObject;
class SceneObject;

/// Categories of `PhysicsObject::kind`.
namespace collisionKind {
constexpr int none = 0;    ///< Falls, but collides with nothing.
constexpr int normal = 1;  ///< Collides with all but kind 0; static ones do not meet each other.
constexpr int loose = 2;   ///< Ropes and hanging parts: meet static bodies and kind 3 only.
constexpr int barrier = 3; ///< Meets loose parts too.
constexpr int solid = 4;   ///< As a dynamic normal body, whether static or not.
} // namespace collisionKind

/// What the broadphase tests: a pair may collide if the group of each is in the mask of the other.
struct CollisionFilter {
    int group;
    int mask;
};

/// Filter of a kind; nothing for an unknown kind, which takes no part in the world.
std::optional<CollisionFilter> collisionFilter(int kind, bool isStatic);

/// The scene object of a body, null for bodies that the game did not make.
inline SceneObject* sceneObjectOf(const btCollisionObject& body) {
    return static_cast<SceneObject*>(body.getUserPointer());
}
/// The physics object of a body, null likewise.
PhysicsObject* physicsObjectOf(const btCollisionObject& body);
