#include "support/EngineFixture.h"

#include "People.h"
#include "game/flow/ChapterFlow.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

// What the walkthroughs of the second and third chapter don't come by.

namespace {

class GateAndShaft : public EngineFixture {
protected:
    static SceneObject* named(SceneObject* object, const std::string& name) {
        object->addAddition(parseScript("NAME " + name));
        return object;
    }

    static bool gateMoves(SceneObject& gate) {
        const float height = originOf(gate).y();
        physicsModule().update();
        return originOf(gate).y() != height;
    }
};

TEST_F(GateAndShaft, TheGateHoldsAsLongAsTheWedgeTouchesBothHolders) {
    SceneObject* gate = named(addBox(-350, 33, 22, 63, 0), "WGATE");
    named(addBox(-30, 0, 40, 20, 0), "H1");
    SceneObject* second = named(addBox(50, 0, 40, 20, 0), "H2");
    named(addBox(10, 30, 40, 10, 1), "BLOCK"); // lies on both
    Player* player = addPlayer(500, 0);
    player->physicsObject->body->setGravity(btVector3(0, 0, 0));
    step(30);
    runScript("CH3BLOCKCHECK");
    step(300);
    EXPECT_EQ(originOf(*gate).y(), 33.0F);
    EXPECT_FALSE(player->isSpeaking());

    sceneManager().removeSceneObject(second);
    step(4);
    EXPECT_TRUE(player->isSpeaking());
    EXPECT_TRUE(gateMoves(*gate));
    step(60);
    EXPECT_EQ(originOf(*gate).y(), 159.0F);
    EXPECT_FALSE(gateMoves(*gate));
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());
}

TEST_F(GateAndShaft, OfTwoLianasOneSnapsEvenIfBothTriggersAreTouchedAtOnce) {
    for (const char* liana : {"LIA1", "LIA2"}) {
        addNamed(liana, 0, 500);
    }
    for (const int number : {1, 2}) {
        const std::string digit = std::to_string(number);
        letThrough(addNamed("LIA" + digit + "T", 0, 0, 20, "TRIGGER -P LOCK CH2LIA" + digit));
    }
    addPlayer(0, 10);
    step(150);
    EXPECT_EQ(sceneManager().getSceneObject("LIA1"), nullptr);
    EXPECT_NE(sceneManager().getSceneObject("LIA2"), nullptr);
}

TEST_F(GateAndShaft, ThoseBehindTheWindowHuntAndCanBeHurtByLightOnceItBreaks) {
    named(addBox(0, 0, 50, 10, 0), "ZL1");
    runScript("LOCK CH3ZL1 REMOVESCRIPT");
    step();
    auto* watcher = EvilPlayer::of(sceneManager().objects.back());
    ASSERT_NE(watcher, nullptr);
    EXPECT_EQ(watcher->state, EvilState::puppet);
    EXPECT_EQ(watcher->findAddition(AdditionType::lightReader), nullptr);

    runScript("LOCK CH3WINSTOP REMOVESCRIPT");
    step();
    EXPECT_EQ(watcher->state, EvilState::hunter);
    EXPECT_NE(watcher->findAddition(AdditionType::lightReader), nullptr);
}

TEST_F(GateAndShaft, TheWayOutOpensOnlyWhenNoneIsLeftInsideTheGate) {
    SceneObject* door = addNamed("WYJSCIE", 0, 0, 20);
    addNamed("WYJSCIED", 0, 100);
    SceneObject* pane = addNamed("OKNO", 0, 300);
    addPlayer(700, 0);
    addMonster(-600, -300);
    addMonster(100, -300);
    pane->addAddition(parseScript("CH3LSPAWNS"));
    step(10);
    EXPECT_FALSE(gateMoves(*door));
    sceneManager().removeSceneObject(sceneManager().objects.back());
    step(3);
    EXPECT_TRUE(gateMoves(*door));
    EXPECT_EQ(pane->additions.size(), 1U); // its name
}

} // namespace
