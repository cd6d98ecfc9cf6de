#pragma once

#include "EqWeapon.h"

#include <LinearMath/btVector3.h>

/// What a character must be to lead others through `EvilHands`.
class PackLeader {
public:
    virtual ~PackLeader() = default;
    /// Howls, and sends the others around that hunt nothing to the place.
    virtual void rally(const btVector3& place) = 0;
    virtual void lightEyes() = 0;
    virtual void dimEyes() = 0; ///< Without effect on dark ones.
};

/// The item of a monster that the user steers: it calls the pack and lights the eyes.
class EvilHands : public EqWeapon {
public:
    EvilHands();

    int getType() const override { return itemType::evilHands; }
    void primaryDown() override;
    void secondaryDown() override;
    void secondaryUp() override;
    SceneObject* use(float x, float y, float angle, float a, float b) override;
    SceneObject* makeProjectile(float x, float y, float a, float vx, float vy) override;

private:
    PackLeader* leader() const; // null if the carrier leads nobody
    void releaseButton() const;
};
