#pragma once

#include <BulletCollision/BroadphaseCollision/btBroadphaseInterface.h>

#include <vector>

class btRigidBody;

/// Collects whatever a box query of the broadphase meets, in its order.
class myAABBCallback : public btBroadphaseAabbCallback {
public:
    /// Always true: the query goes on.
    bool process(const btBroadphaseProxy* proxy) override;

    std::vector<btRigidBody*> bodies; ///< Not owned; null for what is no rigid body.
};
