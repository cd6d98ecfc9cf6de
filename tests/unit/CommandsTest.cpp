#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "ProcessValues.h"
#include "game/commands/CommandTables.h"
#include "game/flow/ChapterFlow.h"
#include "inputModule/GameInput.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <functional>

namespace {

class Commands : public EngineFixture {
protected:
    void TearDown() override {
        movementLocked = 0;
        cutsOn = 0;
        EngineFixture::TearDown();
    }
};

TEST_F(Commands, EveryCommandIsEnteredAndRunsWhateverItsOwnerIsWithNothingElseThere) {
    SceneObjectDescription scenery;
    scenery.physical = false;
    const std::function<SceneObject*()> owners[] = {[] { return nullptr; },
                                                    [&] {
                                                        auto* box = new SceneObject(
                                                            makeBoxParts(scenery, 0, 0, 5, 5));
                                                        sceneManager().addSceneObject(box);
                                                        return box;
                                                    },
                                                    [] { return addNamed("ENEMY", 0, 0); }};
    for (const auto table : commandTables()) {
        for (const NamedCommand& command : table) {
            EXPECT_TRUE(callbackTable().contains(command.name)) << command.name;
            for (const auto& makeOwner : owners) {
                const std::unique_ptr<CallbackAdd> link(parseScript(command.name));
                link->update(makeOwner());
                step(2);
                physicsModule().removeAllScripts();
                sceneManager().clearScene(); // some bring monsters wherever they run
            }
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
