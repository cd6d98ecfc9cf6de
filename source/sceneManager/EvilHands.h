#pragma once

#include "EqWeapon.h"

class EvilPlayer;

/// The item of a monster that the user steers: it calls the pack and lights the eyes.
/// Nobody else can do anything with it.
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
    EvilPlayer* leader() const; // null if the carrier is no monster
    void releaseButton() const;
};
