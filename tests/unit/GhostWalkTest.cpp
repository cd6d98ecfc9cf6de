#include "game/commands/GhostWalk.h"
#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/commands/NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/Player.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <algorithm>

namespace {

class GhostWalk : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        named("W1", 0, 0);
        named("W2", 0, 20);
        named("W3", 0, 50);
    }
    void TearDown() override {
        chapterFlags.fill(0);
        EngineFixture::TearDown();
    }

    static SceneObject* named(const std::string& name, float x, float y) {
        SceneObject* object = addBox(x, y, 5, 5, 0);
        object->addAddition(parseScript("NAME " + name));
        return object;
    }
    static void run(const std::string& name) {
        const std::unique_ptr<CallbackAdd> link(parseScript(name));
        link->update(nullptr);
    }
    static bool walks(const SceneObject& ghost) {
        return ghost.findAddition(AdditionType::customCallback) != nullptr;
    }
};

TEST_F(GhostWalk, TheGuideGoesOnFromASavedGameByItsName) {
    Player* player = addPlayer(100, 0);
    run("CH6PUTMOVE");
    Player* ghost = findGhost();
    ASSERT_NE(ghost, nullptr);
    step(2); // it is met, and sets out
    EXPECT_TRUE(ghost->hasName("GHOST2"));
    EXPECT_TRUE(ghost->isSpeaking());
    const float height = originOf(*ghost).y();
    step(2);
    EXPECT_NEAR(originOf(*ghost).y() - height, 3.0F, 0.001F);
    step(16);
    EXPECT_TRUE(ghost->hasName("GHOST3"));

    EXPECT_TRUE(walks(*ghost));
    sceneManager().removeSceneObject(player);
    sceneManager().saveMap("ghost.vkl");
    sceneManager().clearScene();
    sceneManager().addScene(loadMapFile("ghost.vkl", true));
    step(30);
    EXPECT_EQ(originOf(*findGhost()).y(), 50.0F);
    EXPECT_TRUE(findGhost()->hasName("GHOST4"));
    EXPECT_FALSE(walks(*findGhost())); // there is no W4
}

TEST_F(GhostWalk, ItWaitsForWhoIsLeftBehindAndNotForWhoHasPassed) {
    Player* player = addPlayer(-600, 0);
    run("CH6PUTMOVE");
    step(30);
    EXPECT_TRUE(findGhost()->hasName("GHOST1"));
    putAt(*player, btVector3(600, 0, 0));
    step(2);
    EXPECT_TRUE(findGhost()->hasName("GHOST2"));
}

TEST_F(GhostWalk, TheLiftGoesWhereItsToggleSays) {
    SceneObject* lift = named("lift", 2474, 960);
    lift->addAddition(parseScript("CH7JAZDA"));
    step(2);
    EXPECT_NEAR(originOf(*lift).y(), 957.6F, 0.01F);
    run("CH7TOGLE");
    step(60);
    EXPECT_EQ(originOf(*lift).y(), 1000.0F);
    run("CH7TOGLE");
    step(60);
    EXPECT_EQ(originOf(*lift).y(), 950.0F);
}

TEST_F(GhostWalk, UpIsDownInItsAreaAndOnlyThereAndUntilItIsSetRight) {
    SceneObject* area = addBox(300, 0, 50, 200, 0);
    area->physicsObject->body->setCollisionFlags(area->physicsObject->body->getCollisionFlags() |
                                                 btCollisionObject::CF_NO_CONTACT_RESPONSE);
    area->addAddition(parseScript("CH6UP"));
    const SceneObject* inside = addBox(300, 0, 5, 5, 1);
    const SceneObject* outside = addBox(500, 0, 5, 5, 1);
    step(20);
    EXPECT_GT(originOf(*inside).y(), 0.0F);
    EXPECT_LT(originOf(*outside).y(), 0.0F);
    area->clearAdditions();
    run("CH6DOWN");
    step(120);
    EXPECT_LT(originOf(*inside).y(), 0.0F);
}

} // namespace
