#include "CommandTables.h"
#include "ProcessValues.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/SaveGame.h"
#include "game/flow/TitleCard.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "inputModule/GameInput.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>

// The words that belong to no chapter.

namespace {

constexpr float zoomStep = 1.01F;        // factor on the zoom at each run
constexpr float invisibleStep = 0.0166F; // alpha lost at each run: gone in a second
constexpr float monsterJump = 160.0F;
constexpr float heavyMass = 18.0F;
constexpr float heavyTurningMass = 100.7F; // turns as a body of this mass would

void zoomIn(SceneObject*, So_Addition*) {
    Camera& camera = *graphicsModule().camera;
    camera.setZoom(camera.getTargetZoom() * zoomStep);
}

/// Starts the overlay over everything at no alpha, on its way to the target.
void fadeAllTo(const Colour4& target) {
    graphicsModule().screenFade->setColour(target[0], target[1], target[2], 0.0F);
    graphicsModule().screenFadeTarget = target;
}

void fadeAllToWhite(SceneObject*, So_Addition*) {
    fadeAllTo({1.0F, 1.0F, 1.0F, 1.0F});
}
void fadeAllToBlack(SceneObject*, So_Addition*) {
    fadeAllTo({0.0F, 0.0F, 0.0F, 1.0F});
}
void fadeAllToBlue(SceneObject*, So_Addition*) {
    fadeAllTo({0.0F, 0.0F, 0.5F, 0.5F});
}

void fadeAllHalfWhite(SceneObject*, So_Addition*) {
    graphicsModule().screenFadeTarget = {0.5F, 0.5F, 0.5F, 0.5F};
}

void fadeSceneToWhite(SceneObject*, So_Addition*) {
    graphicsModule().sceneFade->setColour(1.0F, 1.0F, 1.0F, 0.0F);
    graphicsModule().sceneFadeTarget = {1.0F, 1.0F, 1.0F, 1.0F};
}

void fadeAllToNormal(SceneObject*, So_Addition*) {
    graphicsModule().screenFadeTarget[3] = 0.0F;
}

void fadeNormal(SceneObject*, So_Addition*) {
    graphicsModule().screenFadeTarget[3] = 0.0F;
    graphicsModule().sceneFadeTarget[3] = 0.0F;
}

void removeAllGui(SceneObject*, So_Addition*) {
    inputModule().removeAllFrames();
}

void stopTalk(SceneObject*, So_Addition*) {
    if (sceneManager().player != nullptr) {
        sceneManager().player->silence();
    }
}

/// Both words switch the cut scenes off.
void switchCutsOff(SceneObject*, So_Addition*) {
    cutsOn = 0;
}

void saveNow(SceneObject*, So_Addition*) {
    saveGame();
}
void save(SceneObject*, So_Addition*) {
    saveWithFlicker();
}
void endTitle(SceneObject*, So_Addition*) {
    closeTitleCard();
}

/// Null for everybody else.
PlayerStatistics* monsterStatistics(SceneObject* owner) {
    const bool isMonster = owner != nullptr && owner->type == sceneObjectType::evilPlayer;
    Player* character = isMonster ? owner->asPlayer() : nullptr;
    return character != nullptr ? &character->statistics : nullptr;
}

void setMonsterSpeed(SceneObject* owner, float speed) {
    if (PlayerStatistics* statistics = monsterStatistics(owner)) {
        statistics->speed = speed;
    }
}

void setMonsterSpeedAndJump(SceneObject* owner, float speed) {
    if (PlayerStatistics* statistics = monsterStatistics(owner)) {
        statistics->speed = speed;
        statistics->jump = monsterJump;
    }
}

void makeSlowMonster(SceneObject* owner, So_Addition*) {
    setMonsterSpeed(owner, 200.0F);
}
void makeMonster(SceneObject* owner, So_Addition*) {
    setMonsterSpeedAndJump(owner, 220.0F);
}
void makeFastMonster(SceneObject* owner, So_Addition*) {
    setMonsterSpeedAndJump(owner, 420.0F);
}

/// Heavy, and even harder to turn.
void makeHeavy(SceneObject* owner, So_Addition*) {
    if (btRigidBody* body = bodyOf(owner)) {
        btVector3 inertia;
        body->getCollisionShape()->calculateLocalInertia(heavyTurningMass, inertia);
        body->setMassProps(heavyMass, inertia);
    }
}

void removeJoint(SceneObject* owner, So_Addition*) {
    if (btTypedConstraint* joint = firstJoint(owner)) {
        physicsModule().removeConstraint(joint);
    }
}

void lockMovement(SceneObject*, So_Addition*) {
    movementLocked = 1;
    if (sceneManager().player != nullptr) {
        sceneManager().player->stopKeys();
    }
}

void unlockMovement(SceneObject*, So_Addition*) {
    movementLocked = 0;
}
void lockSimulation(SceneObject*, So_Addition*) {
    physicsRunning = 0;
}
void unlockSimulation(SceneObject*, So_Addition*) {
    physicsRunning = 1;
}
void removeScript(SceneObject*, So_Addition* link) {
    physicsModule().removeScript(link);
}

void removeObject(SceneObject* owner, So_Addition*) {
    if (owner != nullptr) {
        sceneManager().markForRemoval(owner);
    }
}

void makeInvisible(SceneObject* owner, So_Addition*) {
    if (owner == nullptr || owner->graphicsObject == nullptr) {
        return;
    }
    Colour4 colour{};
    owner->graphicsObject->getColour(colour[0], colour[1], colour[2], colour[3]);
    owner->graphicsObject->setColour(colour[0], colour[1], colour[2],
                                     std::max(colour[3] - invisibleStep, 0.0F));
}

} // namespace

std::span<const NamedCommand> commonCommands() {
    static const std::array table{
        NamedCommand{"ZOOMIN", zoomIn},
        NamedCommand{"FADEALLTOWHITE", fadeAllToWhite},
        NamedCommand{"FADEALLTOBLUE", fadeAllToBlue},
        NamedCommand{"FADEALLHALFWHITE", fadeAllHalfWhite},
        NamedCommand{"FADEALLTOBLACK", fadeAllToBlack},
        NamedCommand{"FADESCENETOWHITE", fadeSceneToWhite},
        NamedCommand{"REMOVEALLGUI", removeAllGui},
        NamedCommand{"FADENORMAL", fadeNormal},
        NamedCommand{"FADEALLTONORMAL", fadeAllToNormal},
        NamedCommand{"STOPTALK", stopTalk},
        NamedCommand{"CUTOFF", switchCutsOff},
        NamedCommand{"CUTON", switchCutsOff},
        NamedCommand{"ISAVEGAME", saveNow},
        NamedCommand{"SAVEGAME", save},
        NamedCommand{"XNXX", makeSlowMonster},
        NamedCommand{"XNXX1", makeHeavy},
        NamedCommand{"XNXX2", makeMonster},
        NamedCommand{"XNXX3", makeFastMonster},
        NamedCommand{"REMOVEJOINT", removeJoint},
        NamedCommand{"LOCKMOVEMENT", lockMovement},
        NamedCommand{"UNLOCKMOVEMENT", unlockMovement},
        NamedCommand{"LOCKSIM", lockSimulation},
        NamedCommand{"UNLOCKSIM", unlockSimulation},
        NamedCommand{"ENDCHAPTER", endTitle},
        NamedCommand{"REMOVESCRIPT", removeScript},
        NamedCommand{"REMOVEOBJECT", removeObject},
        NamedCommand{"MAKEINVISIBLE", makeInvisible},
    };
    return table;
}
