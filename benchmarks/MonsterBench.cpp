#include "Ratio.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/MonsterParts.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/TestPlayer.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <vector>

// A step with a pack that hunts the protagonist against the step with as many plain characters in
// their place, which walk to the same point by themselves, so that the world has the same to do.

namespace {

constexpr int walkerCount = 50;
constexpr int crateCount = 450;
const btVector3 preyPlace(0.0F, 265.0F, 0.0F); // on a shelf, seen and out of reach

SceneObjectDescription look(float mass) {
    SceneObjectDescription description;
    description.mass = mass;
    description.texture = textureStore().find("stone.tga");
    return description;
}

void addBox(float x, float y, float halfWidth, float halfHeight, float mass) {
    sceneManager().addSceneObject(
        new SceneObject(makeBoxParts(look(mass), x, y, halfWidth, halfHeight)));
}

void placeAt(const SceneObject& object, const btVector3& place) {
    object.physicsObject->body->getWorldTransform().setOrigin(place);
}

/// A den with a shelf in the middle, and stacks of crates behind the walls to either side.
void fillScene() {
    addBox(0.0F, -40.0F, 1200.0F, 40.0F, 0.0F);
    for (const float side : {-1.0F, 1.0F}) {
        addBox(side * 400.0F, 300.0F, 20.0F, 300.0F, 0.0F);
        addBox(side * 1000.0F, 500.0F, 20.0F, 500.0F, 0.0F);
        for (int i = 0; i < crateCount / 2; ++i) {
            const auto column = static_cast<float>(i % 12);
            const auto row = static_cast<float>(i / 12);
            addBox(side * (440.0F + 44.0F * column), 20.0F + 42.0F * row, 18.0F, 18.0F, 1.0F);
        }
    }
    addBox(0.0F, 230.0F, 60.0F, 20.0F, 0.0F);
    auto* prey = new TestPlayer;
    placeAt(*prey, preyPlace);
    sceneManager().addSceneObject(prey);
    sceneManager().player = prey;
}

/// The walkers of one kind or the other, of which one stands in the scene.
class Pack {
public:
    /// Puts fresh ones of the kind in place of the others; nothing if they are there.
    void put(bool monsters) {
        if (!walkers.empty() && monsters == areMonsters) {
            return;
        }
        for (Player* walker : walkers) {
            sceneManager().removeSceneObject(walker);
        }
        walkers.clear();
        areMonsters = monsters;
        for (int i = 0; i < walkerCount; ++i) {
            Player* walker = monsters ? new EvilPlayer : makePlain();
            placeAt(*walker, {static_cast<float>(i % 25) * 28.0F - 336.0F,
                              12.0F + static_cast<float>(i / 25) * 24.0F, 0.0F});
            walker->setWalkTarget(preyPlace);
            sceneManager().addSceneObject(walker);
            walkers.push_back(walker);
        }
    }

    /// Whether all have seen the protagonist.
    bool hunts() const {
        for (Player* walker : walkers) {
            const EvilPlayer* monster = EvilPlayer::of(walker);
            if (monster == nullptr || monster->target != sceneManager().player) {
                return false;
            }
        }
        return true;
    }

private:
    /// With the body and the looks of a monster.
    static Player* makePlain() {
        SceneParts parts = makeMonsterParts();
        parts.type = sceneObjectType::player;
        auto* walker = new Player(parts);
        parts.physics->body->setDamping(0.5F, 0.0F);
        parts.physics->body->setAnisotropicFriction({1.0F, 0.0F, 0.0F});
        return walker;
    }

    std::vector<Player*> walkers; // owned by the scene
    bool areMonsters = false;
};

void huntingStep(benchmark::State& state) {
    fillScene();
    // Out of hearing: fifty wet footfalls take more channels than there are.
    graphicsModule().camera->setView(5000.0F, 0.0F, 1.0F);
    Pack pack;
    const auto stepWith = [&pack](bool monsters) {
        pack.put(monsters); // once a round, which is nothing beside its steps
        physicsModule().update();
    };
    for (int i = 0; i < 60; ++i) { // the crates settle
        stepWith(true);
    }
    if (!pack.hunts()) {
        state.SkipWithError("the pack does not hunt");
    }
    compare(
        state, 300, 1.3, [&] { stepWith(true); }, [&] { stepWith(false); });
    sceneManager().clearScene();
    graphicsModule().camera->setView(0.0F, 0.0F, 1.0F);
}

} // namespace

BENCHMARK(huntingStep)->Iterations(1);
