#include "Chapter13Ghosts.h"

#include "GhostWalk.h"
#include "Language.h"
#include "Monsters.h"
#include "NamedObjects.h"
#include "Random.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/ForcefieldAdd.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <cmath>
#include <string>

namespace ghosts {
namespace {

constexpr float flightStep = 2.4F; // units a step
constexpr float burstSpeed = 200.0F;
constexpr float lastBurstSpeed = 300.0F;
constexpr float burstSize = 200.0F; // particles
constexpr float throwOff = 400.0F;  // impulse
constexpr int hitsToLose = 5;
constexpr int points = 5; // B1 to B5
constexpr int firstTaunt = 369;
constexpr int taunts = 5;
constexpr float barrierPower = 2.05F;   // multiples of gravity
constexpr float barrierRate = 1.55F;    // particles a step
constexpr unsigned monsterPeriod = 250; // steps
constexpr float monsterSpeed = 160.0F;

// Of the one that annoys.
constexpr float orbit = 85.0F;       // world units
constexpr float orbitTurn = 0.021F;  // radians a step
constexpr float orbitOver = 75.0F;   // of its middle over the protagonist
constexpr float annoyingStep = 3.2F; // units a step
constexpr int remarkPeriod = 330;    // steps, on average
constexpr int firstRemark = 574;
constexpr int remarks = 3;

int& flightPoint = chapterFlags[0]; ///< 1 to 5; 0 while none is chosen.
int& hits = chapterFlags[1];

float drawChannel() {
    return static_cast<float>(drawRandom() % 100) / 100.0F;
}

/// The ghost crackles out of the hands of the protagonist.
void shakeOff(SceneObject& ghost) {
    burst(&ghost, burstSpeed, burstSize);
    zap(placeOf(ghost));
    if (const Player* player = sceneManager().player) {
        emptyHands(*player);
    }
}

void flash() {
    GraphicsModule& graphics = graphicsModule();
    graphics.ambient = {drawChannel(), drawChannel(), drawChannel()};
    graphics.ambientTarget = {0.1F, 0.1F, 0.1F};
}

/// Throws the protagonist away from the ghost.
void repel(const SceneObject& ghost) {
    const Player* player = sceneManager().player;
    const btVector3 way = placeOf(*player) - placeOf(ghost);
    if (!way.fuzzyZero()) {
        player->physicsObject->body->applyCentralImpulse(way.normalized() * throwOff);
    }
}

void flyOn(SceneObject& ghost) {
    if (flightPoint == 0) {
        flightPoint = drawRandom() % points + 1;
    }
    btVector3 goal;
    if (!placeOf("B" + std::to_string(flightPoint), goal) ||
        ghost.physicsObject->moveTowards(goal.x(), goal.y(), flightStep)) {
        flightPoint = 0;
    }
}

int drawMonsters() {
    const int r = drawRandom() % 100 + 1;
    if (r < 70) {
        return 1;
    }
    if (r < 75) {
        return 2;
    }
    if (r < 80) {
        return 3;
    }
    return r < 97 ? 0 : 5;
}

void letMonstersOut(const SceneObject& ghost) {
    const btVector3 place = placeOf(ghost);
    const int count = drawMonsters();
    for (int i = 0; i < count; ++i) {
        addMonster(place + btVector3(0.0F, static_cast<float>(i * 10 - 30), 0.0F), monsterSpeed);
    }
}

void lose(SceneObject& ghost, Player& player, So_Addition* link) {
    burst(&ghost, lastBurstSpeed, burstSize);
    zap(placeOf(ghost));
    runScript("LOCK SOUND anxiety4.wav LOCKMOVEMENT DELAY 600 CH13END REMOVESCRIPT");
    graphicsModule().ambientTarget = {1.0F, 0.3F, 0.3F};
    player.statistics.health = 300;
    player.say(text(374), 100);
    ghost.removeAddition(link);
}

} // namespace

void breatheMonster(SceneObject*, So_Addition*) {
    Player* ghost = findGhost();
    if (ghost != nullptr) {
        burst(ghost, burstSpeed, burstSize / 4.0F);
        addMonster(placeOf(*ghost), monsterSpeed).growl();
        verb::speak(*ghost, {{577, 160}});
    }
}

void annoy(SceneObject* owner, So_Addition*) {
    Player* ghost = owner != nullptr ? owner->asPlayer() : nullptr;
    Player* player = sceneManager().player;
    if (ghost == nullptr || player == nullptr) {
        return;
    }
    if (firstJoint(ghost) != nullptr) {
        shakeOff(*ghost);
        verb::speak(*player, {{376, 160}});
        runScript("LOCK CH13GOAWAY REMOVESCRIPT");
        return;
    }
    const float turn = static_cast<float>(physicsModule().stepCount % 100'000) * orbitTurn;
    const btVector3 goal =
        placeOf(*player) +
        btVector3(std::cos(turn) * orbit, orbitOver + std::sin(turn) * orbit / 2.0F, 0.0F);
    ghost->physicsObject->moveTowards(goal.x(), goal.y(), annoyingStep);
    if (!ghost->isSpeaking() && drawRandom() % remarkPeriod == 0) {
        ghost->say(text(firstRemark + drawRandom() % remarks), 160);
    }
}

void challenge(SceneObject* owner, So_Addition* link) {
    verb::putGhost("B0", "GHOST", "CH13BEGINBATTLE")(owner, link);
    verb::emit("BARIER", barrierRate)(owner, link);
    if (SceneObject* barrier = sceneManager().getSceneObject("BARIER")) {
        barrier->addAddition(new ForcefieldAdd(barrierPower));
    }
}

void beginBattle(SceneObject* owner, So_Addition* link) {
    Player* ghost = owner != nullptr ? owner->asPlayer() : nullptr;
    btVector3 goal;
    if (ghost == nullptr || !placeOf("B1", goal)) {
        endLoop(owner, link);
        return;
    }
    runScript("LOCKMOVEMENT REMOVESCRIPT");
    if (!ghost->physicsObject->moveTowards(goal.x(), goal.y(), flightStep)) {
        return;
    }
    verb::speak(*ghost, {{367, 200}, {0, 60}});
    if (Player* player = sceneManager().player) {
        verb::speak(*player, {{0, 220}, {368, 200}});
    }
    runScript("LOCK SOUND anxiety3.wav DELAY 600 CH13BATTLEI UNLOCKMOVEMENT SAVEGAME REMOVESCRIPT");
    ghost->removeAddition(link);
}

void battle(SceneObject* owner, So_Addition* link) {
    Player* ghost = owner != nullptr ? owner->asPlayer() : nullptr;
    if (ghost == nullptr) {
        endLoop(owner, link);
        return;
    }
    Player* player = sceneManager().player;
    if (player == nullptr) {
        ghost->say(text(firstTaunt + drawRandom() % taunts), 100);
        return;
    }
    if (hits == hitsToLose) {
        lose(*ghost, *player, link);
        return;
    }
    flyOn(*ghost);
    if (firstJoint(ghost) != nullptr) {
        shakeOff(*ghost);
        flash();
        ++hits;
        repel(*ghost);
    }
    if (physicsModule().stepCount % monsterPeriod == 0) {
        letMonstersOut(*ghost);
    }
}

} // namespace ghosts
