// How a monster makes up its mind, step by step: what it sees, whom it follows, calls and bites,
// and where it walks meanwhile.

#include "EvilPlayer.h"

#include "Random.h"
#include "SceneManager.h"
#include "So_Addons/Bodies.h"
#include "So_Addons/Contacts.h"
#include "graphicsModule/LightReaderAdd.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

namespace {

constexpr int deadlyLight = 128; // mean of three bytes, survived

constexpr std::uint32_t lookPeriod = 20; // steps; all monsters look in the same one
constexpr float sightX = 400.0F;         // world units to each side
constexpr float sightY = 300.0F;
constexpr float furthestPrey = 99999.0F;

constexpr std::uint32_t bitePause = 20; // steps from a bite that pass without another
constexpr float usualBite = 25.0F;      // of who has no bite of its own
constexpr float strongestBite = 1.0e9F; // what a file says must fit hit points
constexpr int howlChance = 200;         // steps in which one howl is to be expected
constexpr std::int32_t calmAfter = 200; // steps of patrol until the eyes close
constexpr float arrivalDistance = 9.0F; // world units
constexpr float fullHeartVolume = 128.0F;

const btVector3& placeOf(const btRigidBody& body) {
    return body.getWorldTransform().getOrigin();
}

} // namespace

void EvilPlayer::feelLight() {
    const auto* reader = static_cast<LightReaderAdd*>(findAddition(AdditionType::lightReader));
    if (reader != nullptr && (reader->red + reader->green + reader->blue) / 3 > deadlyLight) {
        statistics.health = -1;
    }
}

void EvilPlayer::behave() {
    if (state == EvilState::hunter) {
        hunt();
    } else if (state == EvilState::patrol) {
        patrol();
    }
}

/// Who is hunted hears its heart.
void EvilPlayer::spreadDread() const {
    if (target != nullptr && target == sceneManager().player) {
        ++soundManager().heartCount;
        soundManager().heartVolume = fullHeartVolume;
    }
}

void EvilPlayer::bite() {
    const std::uint32_t now = physicsModule().stepCount;
    if (target == nullptr || now - lastBiteStep <= bitePause) {
        return;
    }
    for (const btPersistentManifold* manifold : manifoldsOf(this)) {
        SceneObject* other = contactOf(this, *manifold).other;
        if (other == target) {
            const float damage = statistics.bite == 0.0F ? usualBite : statistics.bite;
            other->hurt(static_cast<int>(std::clamp(damage, -strongestBite, strongestBite)));
            soundManager().playAt("chomp.wav", placeOf(body()));
            lastBiteStep = now;
            return;
        }
    }
}

/// Only in the presence of prey: a patrol is never without a calm step.
void EvilPlayer::howlByChance() {
    if (calmSteps == 0 && state != EvilState::puppet && drawRandom() % howlChance == 0) {
        growl();
    }
}

void EvilPlayer::hunt() {
    if (target == nullptr) {
        patrol();
    } else {
        chase();
    }
    // Who was just called goes before it looks, whichever of the two comes first in a step.
    if (physicsModule().stepCount % lookPeriod == 0 && !called) {
        lookForPrey();
    }
    called = false;
}

void EvilPlayer::lookForPrey() {
    SceneObject* prey = findPrey();
    if (prey == nullptr) {
        target = nullptr;
        return;
    }
    calmSteps = 0;
    lightEyes();
    if (target == nullptr) {
        growl();
    }
    target = prey;
    chase();
    alertNeighbours(placeOf(*bodyOf(prey)));
}

void EvilPlayer::chase() {
    const bool isThere = target != alerted() && sceneManager().contains(target);
    if (const btRigidBody* prey = isThere ? bodyOf(target) : nullptr) {
        setWalkTarget(placeOf(*prey));
    }
}

void EvilPlayer::alertNeighbours(const btVector3& place) {
    for (SceneObject* neighbour : neighbours) {
        if (EvilPlayer* other = of(neighbour)) {
            other->call(place);
        }
    }
}

bool EvilPlayer::call(const btVector3& place) {
    if (target != nullptr || state == EvilState::puppet) {
        return false;
    }
    setWalkTarget(place);
    target = alerted();
    called = true;
    return true;
}

SceneObject* EvilPlayer::findPrey() {
    const btVector3& place = placeOf(body());
    physicsModule().queryBox(place.x(), place.y(), sightX, sightY, bodiesAround);
    neighbours.clear();
    SceneObject* prey = nullptr;
    for (const btRigidBody* found : bodiesAround) {
        SceneObject* object = found != nullptr ? sceneObjectOf(*found) : nullptr;
        if (object == nullptr) {
            continue; // nothing that the game made
        }
        neighbours.push_back(object);
        if (object->type == sceneObjectType::testPlayer &&
            placeOf(*found).distance(place) < furthestPrey) {
            prey = object;
        }
    }
    return prey;
}

void EvilPlayer::patrol() {
    ++calmSteps;
    if (calmSteps > calmAfter) {
        dimEyes();
    }
    if (waypoints.empty()) {
        return;
    }
    const auto count = static_cast<std::uint32_t>(waypoints.size());
    waypointIndex %= count; // the ring may be another than the one that was walked before
    const auto goal = [this] {
        return btVector3(waypoints[waypointIndex].x, waypoints[waypointIndex].y, 0.0F);
    };
    if (placeOf(body()).distance(goal()) < arrivalDistance) {
        waypointIndex = (waypointIndex + 1) % count;
    }
    setWalkTarget(goal());
}
