#include "BareWorld.h"
#include "Ratio.h"

#include "TextStream.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Levels.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/SceneManager.h"

#include <vector>

// What our step adds to Bullet's in the levels as they are played: each chapter at its start
// against a bare world of the same bodies and joints.

/// The bodies and joints of the running scene once more, the user's character among them.
static SceneBundle copyScene() {
    TextWriter writer;
    writeScene(writer);
    TextReader reader(writer.text());
    return parseScene(reader, false);
}

static void chapterStep(benchmark::State& state) {
    const Level level = levelOf(static_cast<int>(state.range(0)));
    registerFlowCommands();
    startInLevel(level);
    physicsModule().update(); // in which some make others
    const SceneBundle bundle = copyScene();
    const std::vector<SceneObject*> originals = sceneManager().objects;
    {
        BareWorld bare;
        for (std::size_t i = 0; i < bundle.objects.size(); ++i) {
            if (PhysicsObject* copy = bundle.objects[i]->physicsObject) {
                bare.add(*copy, originals[i]);
            }
        }
        for (btTypedConstraint* joint : bundle.joints) {
            bare.add(*joint);
        }
        compareInTurn(
            state, 300, 1.3, [&bare](int) { bare.follow(5.0F); }, [] { physicsModule().update(); },
            [&bare] { bare.step(); });
    }
    physicsModule().removeAllScripts();
    sceneManager().clearScene();
    physicsModule().update();
}

BENCHMARK(chapterStep)->DenseRange(1, chapterCount)->Iterations(1);
