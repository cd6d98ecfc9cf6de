#include "support/EngineFixture.h"

#include "People.h"
#include "game/flow/ChapterFlow.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

// What the walkthroughs of the kiln and of the water works do not meet.

namespace {

using KilnAndWaterworks = EngineFixture;

TEST_F(KilnAndWaterworks, FourMonstersLeaveThePipeInTheirTime) {
    runScript("LOCK CH4SPAWN REMOVESCRIPT");
    int sofar = 0;
    for (const auto& [at, count] :
         {std::pair{59, 0U}, {60, 1U}, {218, 1U}, {219, 2U}, {417, 2U}, {418, 4U}}) {
        step(at - sofar);
        sofar = at;
        EXPECT_EQ(monsters().size(), count) << at;
    }
    EXPECT_EQ(originOf(*sceneManager().objects.back()), btVector3(-495, -950, 0));
}

TEST_F(KilnAndWaterworks, ACrystalThatFellIntoWaterHangsWhereItHung) {
    SceneObject* crystal = addNamed("PCRYS", 500, -300);
    addNamed("SOCK", 0, 0);
    addNamed("PCRYSPOS", 100, 200);
    addNamed("WORKS", -500, 0, 10, "CH5WODA");
    crystal->waterCount = 1;
    step();
    EXPECT_EQ(originOf(*crystal), btVector3(100, 200, 0));
}

TEST_F(KilnAndWaterworks, GasSparesTheMonsterThatTheUserIs) {
    EvilPlayer* self = addMonster(0, 0);
    sceneManager().player = self->asPlayer();
    addMonster(200, 0);
    runScript("LOCK CH5DELENEMIES REMOVESCRIPT");
    step(2);
    EXPECT_EQ(monsters().size(), 1U);
    EXPECT_TRUE(sceneManager().contains(self));
}

} // namespace
