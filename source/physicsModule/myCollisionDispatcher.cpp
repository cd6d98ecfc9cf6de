#include "myCollisionDispatcher.h"

#include "CollisionRules.h"
#include "PhysicsObject.h"

namespace {

int kindOf(const btCollisionObject& body) {
    const PhysicsObject* object = physicsObjectOf(body);
    return object != nullptr ? object->kind : collisionKind::normal;
}

/// Whether a loose part meets the other body.
bool looseMeets(int otherKind, const btCollisionObject& other) {
    return otherKind == collisionKind::barrier || other.isStaticObject();
}

} // namespace

bool myCollisionDispatcher::needsCollision(const btCollisionObject* body0,
                                           const btCollisionObject* body1) {
    if (!btCollisionDispatcher::needsCollision(body0, body1)) {
        return false;
    }
    const int kind0 = kindOf(*body0);
    const int kind1 = kindOf(*body1);
    if (kind0 == collisionKind::loose) {
        return looseMeets(kind1, *body1);
    }
    if (kind1 == collisionKind::loose) {
        return looseMeets(kind0, *body0);
    }
    return true;
}
