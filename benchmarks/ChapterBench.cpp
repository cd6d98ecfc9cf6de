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

#include <BulletDynamics/Dynamics/btRigidBody.h>

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

struct Twins {
    const SceneObject* original; ///< May have left the scene.
    btRigidBody* copy;
};

static std::vector<Twins> pair(const std::vector<SceneObject*>& originals,
                               const std::vector<SceneObject*>& copies) {
    std::vector<Twins> twins;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        if (copies[i]->physicsObject != nullptr) {
            twins.push_back({originals[i], copies[i]->physicsObject->body.get()});
        }
    }
    return twins;
}

/// Brings the copies to where the originals are and go: in a level somebody walks and flies, which
/// bare bodies do not.
static void follow(const std::vector<Twins>& twins) {
    for (const auto& [original, copy] : twins) {
        if (sceneManager().contains(original)) {
            const btRigidBody& body = *original->physicsObject->body;
            copy->setWorldTransform(body.getWorldTransform());
            copy->setInterpolationWorldTransform(body.getInterpolationWorldTransform());
            copy->setLinearVelocity(body.getLinearVelocity());
            copy->setAngularVelocity(body.getAngularVelocity());
            copy->setDeactivationTime(body.getDeactivationTime());
            copy->forceActivationState(body.getActivationState());
        }
    }
}

static void chapterStep(benchmark::State& state) {
    const Level level = levelOf(static_cast<int>(state.range(0)));
    registerFlowCommands();
    startInLevel(level);
    physicsModule().update(); // in which some make others
    const SceneBundle bundle = copyScene();
    const std::vector<Twins> twins = pair(sceneManager().objects, bundle.objects);
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
        compareInTurn(
            state, 120, 1.3, [&twins] { follow(twins); }, [] { physicsModule().update(); },
            [&bare] { bare.step(); });
    }
    physicsModule().removeAllScripts();
    sceneManager().clearScene();
    physicsModule().update();
}

BENCHMARK(chapterStep)->DenseRange(1, chapterCount)->Iterations(1);
