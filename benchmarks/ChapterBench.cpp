#include "BareWorld.h"
#include "Ratio.h"

#include "ProcessValues.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Progress.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/Player.h"

#include <filesystem>

// What our step adds to Bullet's in the levels as they are played: each chapter at its start
// against a bare world of the same bodies and joints.

static void chapterStep(benchmark::State& state) {
    const std::string map = "CHAPTER" + std::to_string(state.range(0)) + ".vkl";
    if (!std::filesystem::exists(dataPrefix + "maps/" + map)) {
        state.SkipWithError("no such map");
        return;
    }
    registerFlowCommands();
    enterMap(map);
    const SceneBundle bundle = loadMapFile(dataPrefix + "maps/" + map, false);
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
