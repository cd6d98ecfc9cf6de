#include "CollisionRules.h"

#include "PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

namespace group {
constexpr int normal = 0x1;
constexpr int fixed = 0x2;
constexpr int ghost = 0x8;
constexpr int nobody = 0x10; // no body has this group, so a mask of it alone matches none
constexpr int loose = 0x20;
constexpr int barrier = 0x40;
constexpr int all = 0xFFFF;
} // namespace group

} // namespace

std::optional<CollisionFilter> collisionFilter(int kind, bool isStatic) {
    const int notFixed = isStatic ? group::all & ~group::fixed : group::all;
    switch (kind) {
    case collisionKind::none:
        return CollisionFilter{group::ghost, group::nobody};
    case collisionKind::normal:
        return CollisionFilter{isStatic ? group::fixed : group::normal, notFixed & ~group::ghost};
    case collisionKind::loose:
        return CollisionFilter{group::loose, notFixed & ~(group::nobody | group::loose)};
    case collisionKind::barrier:
        return CollisionFilter{group::barrier, notFixed & ~group::nobody};
    case collisionKind::solid:
        return CollisionFilter{group::normal, group::all & ~group::ghost};
    default:
        return std::nullopt;
    }
}

PhysicsObject* physicsObjectOf(const btCollisionObject& body) {
    const SceneObject* object = sceneObjectOf(body);
    return object != nullptr ? object->physicsObject : nullptr;
}

static int traitsWith(const btCollisionObject& body, const SceneObject& owner) {
    if (owner.physicsObject == nullptr) {
        return 0;
    }
    const PhysicsObject& object = *owner.physicsObject;
    const bool noise =
        owner.contactNoise && object.kind == collisionKind::normal && body.hasContactResponse();
    return (object.kind == collisionKind::loose ? bodyTrait::loose : 0) |
           (object.kind == collisionKind::barrier ? bodyTrait::barrier : 0) |
           (object.wantsContacts ? bodyTrait::wantsContacts : 0) |
           (noise ? bodyTrait::makesNoise : 0);
}

int findTraits(const btCollisionObject& body) {
    const SceneObject* owner = sceneObjectOf(body);
    return owner != nullptr ? traitsWith(body, *owner) : 0;
}

void storeTraits(btCollisionObject& body, const SceneObject& owner) {
    const int before = body.getCollisionFlags();
    const int now = (before & ~bodyTrait::all) | bodyTrait::noted | traitsWith(body, owner);
    if (now != before) { // most never change, and need not be written back to memory
        body.setCollisionFlags(now);
    }
}
