#pragma once

#include <BulletCollision/CollisionDispatch/btCollisionDispatcher.h>

/// Adds the rule of loose parts, which groups and masks cannot tell: they pass through other
/// dynamic bodies unless these are barriers.
class myCollisionDispatcher : public btCollisionDispatcher {
public:
    using btCollisionDispatcher::btCollisionDispatcher;
    ~myCollisionDispatcher() override = default;

    bool needsCollision(const btCollisionObject* body0, const btCollisionObject* body1) override;
};
