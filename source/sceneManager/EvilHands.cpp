#include "EvilHands.h"

#include "Equipment.h"
#include "EvilPlayer.h"

/// Sends the monsters around to where the leader looks. The first to go answers it.
static void rally(const EvilPlayer& leader) {
    bool answered = false;
    for (SceneObject* neighbour : leader.getNeighbours()) {
        EvilPlayer* follower = EvilPlayer::of(neighbour);
        if (follower == nullptr || follower == &leader) {
            continue;
        }
        follower->waypoints.clear();
        if (!follower->call(leader.aimPoint)) {
            continue;
        }
        follower->lightEyes();
        if (!answered) {
            follower->growl();
            answered = true;
        }
    }
}

EvilHands::EvilHands() : EqWeapon(0.0F, 500.0F) {}

EvilPlayer* EvilHands::leader() const {
    return EvilPlayer::of(equipment->owner);
}

void EvilHands::releaseButton() const {
    equipment->owner->keys &= ~playerKey::primary;
}

void EvilHands::primaryDown() {
    if (EvilPlayer* monster = leader()) {
        monster->growl();
        monster->findPrey();
        rally(*monster);
        monster->lightEyes();
    }
    releaseButton();
}

void EvilHands::secondaryDown() {
    if (EvilPlayer* monster = leader()) {
        monster->lightEyes();
    }
    releaseButton();
}

void EvilHands::secondaryUp() {
    if (EvilPlayer* monster = leader()) {
        monster->dimEyes();
    }
}

SceneObject* EvilHands::use(float, float, float, float, float) {
    return nullptr;
}

SceneObject* EvilHands::makeProjectile(float, float, float, float, float) {
    return nullptr;
}
