#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/commands/CommandTables.h"
#include "game/flow/ChapterFlow.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <algorithm>

// What the walkthroughs of the kiln and of the water works do not meet.

namespace {

class KilnAndWaterworks : public EngineFixture {
protected:
    static SceneObject* addNamed(const std::string& name, float x, float y, float mass = 0.0F) {
        SceneObject* box = addBox(x, y, 10, 10, mass);
        box->addAddition(parseScript("NAME " + name));
        return box;
    }

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

TEST_F(KilnAndWaterworks, CommandsBearAnEmptySceneAndOwnersWithoutABody) {
    SceneObjectDescription scenery;
    scenery.physical = false;
    for (const auto table : {chapter04Commands(), chapter05Commands()}) {
        for (const NamedCommand& command : table) {
            command.run(nullptr, nullptr);
            auto* box = new SceneObject(makeBoxParts(scenery, 0, 0, 5, 5));
            sceneManager().addSceneObject(box);
            command.run(box, nullptr);
            step(2);
            physicsModule().removeAllScripts();
            sceneManager().clearScene();
        }
    }
}

TEST_F(KilnAndWaterworks, SlowPlatformsArriveAndTheirLoopsEndThereOrWithoutThem) {
    struct Case {
        const char* loop;
        const char* object;
        float x, y;
    };
    for (const auto& [loop, object, x, y] :
         {Case{"CH4MOVE1", "MOVE1", 3080, 60}, Case{"CH4MOVE2", "GATEND", 1192, -850}}) {
        runScript(loop);
        step();
        EXPECT_TRUE(physicsModule().getGlobalScripts().empty()) << loop;
        SceneObject* platform = addNamed(object, x, y - 1);
        runScript(loop);
        step();
        EXPECT_NEAR(originOf(*platform).y(), y - 0.8F, 0.01F) << loop;
        step(5);
        EXPECT_EQ(originOf(*platform), btVector3(x, y, 0)) << loop;
        EXPECT_TRUE(physicsModule().getGlobalScripts().empty()) << loop;
    }
}

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
    SceneObject* crystal = addNamed("PCRYS", 500, -300, 1);
    addNamed("SOCK", 0, 0);
    addNamed("PCRYSPOS", 100, 200);
    SceneObject* works = addNamed("WORKS", -500, 0);
    works->addAddition(parseScript("CH5WODA"));
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
