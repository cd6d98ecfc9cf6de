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

/// What is asked of a body for each pair that it is part of, as bits. Kept on the body, among its
/// collision flags, above all of Bullet's: with a thousand bodies, to follow each pair to the
/// objects behind it, or only to fetch another line of the body, would cost more than all else that
/// we add to a step.
namespace bodyTrait {
constexpr int loose = 1 << 16;
constexpr int barrier = 1 << 17;
constexpr int wantsContacts = 1 << 18;
constexpr int makesNoise = 1 << 19; ///< Its collisions thud and roll.
constexpr int noted = 1 << 20;      ///< The others are there to read.
constexpr int all = loose | barrier | wantsContacts | makesNoise | noted;
} // namespace bodyTrait

/// What they are just now; none for bodies that the game did not make.
int findTraits(const btCollisionObject& body);
/// Notes the traits on the body, at the start of each step.
void storeTraits(btCollisionObject& body, const SceneObject& owner);
/// Those noted, or found for a body that was added since the step began; other bits may be set too.
inline int traitsOf(const btCollisionObject& body) {
    const int flags = body.getCollisionFlags();
    return (flags & bodyTrait::noted) != 0 ? flags : findTraits(body);
}
