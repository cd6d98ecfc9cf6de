#pragma once

#include "EqItem.h"

#include <cstdint>

/// An item with a rate of use and a way to fire.
class EqWeapon : public EqItem {
public:
    /// How fast projectiles leave, in world units a second, and how far from the carrier.
    EqWeapon(float launchSpeed, float muzzleDistance);

    /// Fires, if the pause since the last use is over: puts a projectile into the scene at the
    /// muzzle, with the carrier's velocity on top of its own. `a` is passed on to `makeProjectile`.
    /// Returns the projectile, or null.
    SceneObject* use(float x, float y, float angle, float a, float b) override;
    /// Makes what flies, at that place and with that velocity, not yet in the scene. Null for
    /// nothing.
    virtual SceneObject* makeProjectile(float x, float y, float a, float vx, float vy) = 0;

    std::int32_t period = 20; ///< Steps between uses.
    std::uint32_t lastUse;    ///< Step of the last use; at first that of the making.
    float speed;
    float muzzle;

protected:
    /// Whether the pause since the last use is over.
    bool isReady() const;
};
