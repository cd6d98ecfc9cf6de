#include "Monsters.h"

#include "NamedObjects.h"
#include "game/flow/Ghost.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"

#include <LinearMath/btVector3.h>

#include <algorithm>
#include <iterator>

static constexpr float spawnedSpeed = 200.0F;

EvilPlayer& addMonster(const btVector3& place, float speed,
                       const std::vector<btVector3>& waypoints) {
    auto* monster = new EvilPlayer;
    putAt(*monster, place);
    monster->statistics.speed = speed;
    std::transform(waypoints.begin(), waypoints.end(), std::back_inserter(monster->waypoints),
                   [](const btVector3& point) {
                       return EvilPlayer::Waypoint{point.x(), point.y()};
                   });
    sceneManager().addSceneObject(monster);
    return *monster;
}

void spawnMonster(const btVector3& place) {
    btVector3 there;
    btVector3 back;
    if (placeOf("DEST1", there) && placeOf("DEST2", back)) {
        addMonster(place, spawnedSpeed, {there, back});
    }
}

Player& makeGuide() {
    Player& ghost = *makeGhost(0.0F, 0.0F);
    ghost.physicsObject->kind = collisionKind::loose;
    return ghost;
}
