#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "ProcessValues.h"
#include "game/commands/CommandTables.h"
#include "game/flow/ChapterFlow.h"
#include "inputModule/GameInput.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

namespace {

class Commands : public EngineFixture {
protected:
    void TearDown() override {
        movementLocked = 0;
        cutsOn = 0;
        EngineFixture::TearDown();
    }

    /// Runs the command as a script would, for an object or for none.
    static void run(const std::string& name, SceneObject* owner = nullptr) {
        const std::unique_ptr<CallbackAdd> link(parseScript(name));
        link->update(owner);
    }
};

TEST_F(Commands, EveryCommandIsEnteredAndRunsOnAnEmptySceneAndOnSceneryWithoutABody) {
    SceneObjectDescription scenery;
    scenery.physical = false;
    for (const auto table : commandTables()) {
        for (const NamedCommand& command : table) {
            EXPECT_TRUE(callbackTable().contains(command.name)) << command.name;
            run(command.name);
            step();
            sceneManager().clearScene(); // some bring monsters wherever they run
            auto* box = new SceneObject(makeBoxParts(scenery, 0, 0, 5, 5));
            sceneManager().addSceneObject(box);
            run(command.name, box);
            step();
            sceneManager().clearScene();
        }
    }
}

TEST_F(Commands, TheWorldStandsWhileTheSimulationIsLockedAndGlobalScriptsGoOn) {
    const Player* player = addPlayer(0, 0);
    physicsModule().addScript(parseScript("LOCK LOCKSIM DELAY 20 UNLOCKSIM REMOVESCRIPT"));
    step();
    const float height = originOf(*player).y();
    step(18);
    EXPECT_EQ(originOf(*player).y(), height);
    EXPECT_EQ(physicsRunning, 0);
    step();
    EXPECT_EQ(physicsRunning, 1);
}

TEST_F(Commands, AnObjectFadesOutInASecondAndRemovesItself) {
    SceneObject* box = addBox(0, 0, 5, 5, 0);
    box->addAddition(parseScript("MAKEINVISIBLE DELAY 62 REMOVEOBJECT"));
    step(60);
    EXPECT_NEAR(alphaOf(*box->graphicsObject), 0.004F, 0.001F);
    step();
    EXPECT_EQ(alphaOf(*box->graphicsObject), 0.0F);
    step();
    EXPECT_TRUE(sceneManager().objects.empty());
}

} // namespace
