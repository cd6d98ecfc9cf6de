#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/flow/ChapterFlow.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <algorithm>

// What the walkthroughs of the kiln and of the water works do not meet.

namespace {

class KilnAndWaterworks : public EngineFixture {
protected:
    static SceneObject* addMonster(float x, float y) {
        auto* monster = new EvilPlayer;
        monster->moveBy(x, y);
        sceneManager().addSceneObject(monster);
        return monster;
    }

    static std::ptrdiff_t countMonsters() {
        const auto& objects = sceneManager().objects;
        return std::count_if(objects.begin(), objects.end(),
                             [](SceneObject* object) { return EvilPlayer::of(object) != nullptr; });
    }
};

TEST_F(KilnAndWaterworks, FourMonstersLeaveThePipeInTheirTime) {
    runScript("LOCK CH4SPAWN REMOVESCRIPT");
    int sofar = 0;
    for (const auto& [at, monsters] :
         {std::pair{59, 0}, {60, 1}, {218, 1}, {219, 2}, {417, 2}, {418, 4}}) {
        step(at - sofar);
        sofar = at;
        EXPECT_EQ(countMonsters(), monsters) << at;
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
    SceneObject* self = addMonster(0, 0);
    sceneManager().player = self->asPlayer();
    addMonster(200, 0);
    runScript("LOCK CH5DELENEMIES REMOVESCRIPT");
    step(2);
    EXPECT_EQ(countMonsters(), 1);
    EXPECT_TRUE(sceneManager().contains(self));
}

} // namespace
