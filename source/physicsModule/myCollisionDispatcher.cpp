#include "myCollisionDispatcher.h"

#include "CollisionRules.h"

namespace {

/// Whether a loose part meets the other body.
bool looseMeets(int otherTraits, const btCollisionObject& other) {
    return (otherTraits & bodyTrait::barrier) != 0 || other.isStaticObject();
}

} // namespace

bool myCollisionDispatcher::needsCollision(const btCollisionObject* body0,
                                           const btCollisionObject* body1) {
    if (!btCollisionDispatcher::needsCollision(body0, body1)) {
        return false;
    }
    const int traits0 = traitsOf(*body0);
    const int traits1 = traitsOf(*body1);
    if ((traits0 & bodyTrait::loose) != 0) {
        return looseMeets(traits1, *body1);
    }
    if ((traits1 & bodyTrait::loose) != 0) {
        return looseMeets(traits0, *body0);
    }
    return true;
}
