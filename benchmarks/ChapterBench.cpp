#include "BareWorld.h"
#include "Ratio.h"

#include "ProcessValues.h"
#include "game/commands/NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Levels.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/TestPlayer.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <filesystem>

// What our step adds to Bullet's in the levels as they are played: each chapter at its start
// against a bare world of the same bodies and joints, the user's character among them.

/// Another one like the user's character, at the same place.
static SceneObject* makeTwin(const Player& character) {
    Player* twin = character.type == sceneObjectType::evilPlayer
                       ? static_cast<Player*>(new EvilPlayer)
                       : static_cast<Player*>(new TestPlayer);
    putAt(*twin, character.physicsObject->body->getWorldTransform().getOrigin());
    return twin;
}

static void chapterStep(benchmark::State& state) {
    const Level level = levelOf(static_cast<int>(state.range(0)));
    const std::string path = dataPrefix + "maps/" + level.map;
    if (!std::filesystem::exists(path)) {
        state.SkipWithError("no such map");
        return;
    }
    registerFlowCommands();
    startInLevel(level);
    SceneBundle bundle = loadMapFile(path, false);
    bundle.objects.push_back(makeTwin(*sceneManager().player));
    {
        BareWorld bare;
        for (const SceneObject* object : bundle.objects) {
            if (object->physicsObject != nullptr) {
                bare.add(*object->physicsObject);
            }
        }
        for (btTypedConstraint* joint : bundle.joints) {
            bare.add(*joint);
        }
        compare(
            state, 60, 1.3, [] { physicsModule().update(); }, [&bare] { bare.step(); });
    }
    physicsModule().removeAllScripts();
    sceneManager().clearScene();
    physicsModule().update();
}

BENCHMARK(chapterStep)->DenseRange(1, chapterCount)->Iterations(1);
