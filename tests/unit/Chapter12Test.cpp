#include "support/EngineFixture.h"

#include "People.h"
#include "game/commands/Monsters.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/LightAdd.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

// What a walkthrough of the altar does not tell.

namespace {

class Altar : public EngineFixture {
protected:
    static void addPlaces() {
        for (const char* name : {"SPAWN1", "SPAWN2", "SPAWN3", "DEST1", "DEST2"}) {
            addNamed(name, 0, 0);
        }
        sceneManager().player = &makeGuide(); // anybody who is alive and no monster
        sceneManager().addSceneObject(sceneManager().player);
    }

    void killAll() {
        for (EvilPlayer* monster : monsters()) {
            sceneManager().markForRemoval(monster);
        }
        step();
    }
};

TEST_F(Altar, AWaveBeginsWhenTheLastOfTheOneBeforeIsDead) {
    levelRunning = 1;
    addPlaces();
    SceneObject* lift = addNamed("GRAVITY", 900, 900);
    SceneObject* first = sceneManager().getSceneObject("SPAWN1");
    struct Wave {
        int steps; ///< From the checkpoint, in which the world stands, to its last monster.
        std::size_t size;
    };
    first->addAddition(parseScript("CH12WAVE2"));
    for (const auto& [steps, size] : {Wave{1340, 8}, Wave{1540, 17}, Wave{1040, 17}}) {
        step(steps);
        EXPECT_EQ(monsters().size(), size);
        while (monsters().size() > 1) {
            sceneManager().markForRemoval(monsters().back());
            step();
        }
        step(300);
        EXPECT_EQ(monsters().size(), 1U) << "waits for the last";
        EXPECT_EQ(lift->findAddition(AdditionType::forcefield), nullptr);
        killAll();
    }
    step(2);
    EXPECT_NE(lift->findAddition(AdditionType::forcefield), nullptr);
    EXPECT_TRUE(first->additions.empty());
}

TEST_F(Altar, GlowsUpUntouchedAndAFlashFadesAndGoes) {
    SceneObject* altar = addNamed("ALTAR", 0, 0);
    LightProperties dim;
    dim.size = 50;
    dim.red = 0.1F;
    auto* light = new LightAdd(dim);
    altar->addAddition(light);
    altar->addAddition(parseScript("CH12ALTAR"));
    step(30);
    const float warmer = light->getProperties().red;
    EXPECT_GT(warmer, dim.red);
    step(200);
    const float warm = light->getProperties().red;
    EXPECT_GT(warm, warmer);
    step(10);
    EXPECT_EQ(light->getProperties().red, warm);

    runScript("LOCK CH12FLASH REMOVESCRIPT");
    const std::size_t before = sceneManager().objects.size();
    step(2);
    ASSERT_EQ(sceneManager().objects.size(), before + 1);
    step(160);
    EXPECT_EQ(sceneManager().objects.size(), before);
}

} // namespace
