#include "EvilHands.h"

#include "Equipment.h"
#include "Player.h"

EvilHands::EvilHands() : EqWeapon(0.0F, 500.0F) {}

PackLeader* EvilHands::leader() const {
    return dynamic_cast<PackLeader*>(equipment->owner);
}

void EvilHands::releaseButton() const {
    equipment->owner->keys &= ~playerKey::primary;
}

void EvilHands::primaryDown() {
    if (PackLeader* monster = leader()) {
        monster->rally(equipment->owner->aimPoint);
        monster->lightEyes();
    }
    releaseButton();
}

void EvilHands::secondaryDown() {
    if (PackLeader* monster = leader()) {
        monster->lightEyes();
    }
    releaseButton();
}

void EvilHands::secondaryUp() {
    if (PackLeader* monster = leader()) {
        monster->dimEyes();
    }
}

SceneObject* EvilHands::use(float, float, float, float, float) {
    return nullptr;
}

SceneObject* EvilHands::makeProjectile(float, float, float, float, float) {
    return nullptr;
}
