#include "support/EngineFixture.h"

#include "GameStart.h"
#include "ModuleManager.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

class ChapterFlow : public EngineFixture {
protected:
    void TearDown() override {
        levelRunning = 0;
        EngineFixture::TearDown();
    }

    /// Stores a map of a floor, and of a marker on it, as the first chapter.
    static void writeMap(const char* markerName) {
        add(0.0F, 0.0F, 500.0F, "floor");
        add(100.0F, 60.0F, 1.0F, markerName);
        sceneManager().saveMap("maps/CHAPTER1.vkl");
        sceneManager().clearScene();
    }

    static void add(float x, float y, float halfWidth, const std::string& name) {
        auto* object = new SceneObject(makeBoxParts({}, x, y, halfWidth, 10.0F));
        object->addAddition(parseScript("NAME " + name));
        sceneManager().addSceneObject(object);
    }
};

TEST_F(ChapterFlow, TheGameStartsWithTheProtagonistAtItsPlace) {
    writeMap("STARTPOS");
    chapterFlags[3] = 7;
    gameStart();
    const Player* player = sceneManager().player;
    ASSERT_NE(player, nullptr);
    EXPECT_EQ(player->physicsObject->body->getWorldTransform().getOrigin(),
              btVector3(100.0F, 60.0F, 0.0F));
    EXPECT_EQ(graphicsModule().camera->owner, player);
    EXPECT_EQ(chapterFlags[3], 0);
    EXPECT_EQ(levelRunning, 1);
    EXPECT_TRUE(moduleManager().running);
}

TEST_F(ChapterFlow, AProtagonistThatTheMapBringsIsTaken) {
    writeMap("STARTPOS");
    gameStart();
    sceneManager().player->statistics.health = 10;
    sceneManager().player->statistics.speed = 123.0F;
    sceneManager().saveMap("maps/CHAPTER2.vkl");
    enterMap("CHAPTER2.vkl");
    ASSERT_NE(sceneManager().player, nullptr);
    EXPECT_EQ(sceneManager().player->statistics.speed, 123.0F);
    EXPECT_EQ(sceneManager().player->statistics.health, 100);
    EXPECT_EQ(sceneManager().objects.size(), 3U);
}

TEST_F(ChapterFlow, ADeathLeadsBackToTheStartOfTheMap) {
    writeMap("STARTPOS");
    gameStart();
    step(10);
    sceneManager().player->hurt(1000);
    step(2);
    EXPECT_EQ(sceneManager().player, nullptr);
    step(100);
    ASSERT_NE(sceneManager().player, nullptr);
    EXPECT_EQ(sceneManager().player->statistics.health, 100);
    EXPECT_EQ(sceneManager().objects.size(), 3U);
    sceneManager().player->hurt(1000); // and again
    step(103);
    EXPECT_NE(sceneManager().player, nullptr);
    step(200);
    EXPECT_EQ(physicsModule().getGlobalScripts().size(), 1U); // the watch alone
    EXPECT_TRUE(graphicsModule().fadesFinished());
}

TEST_F(ChapterFlow, AMapThatCannotBeEnteredEndsTheProgram) {
    gameStart();
    EXPECT_FALSE(moduleManager().running);
    moduleManager().running = true;
    writeMap("elsewhere");
    gameStart();
    EXPECT_FALSE(moduleManager().running);
    EXPECT_EQ(levelRunning, 0);
}

} // namespace
