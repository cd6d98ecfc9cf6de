#include "game/commands/GhostWalk.h"
#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/commands/NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/Player.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <algorithm>

namespace {

class GhostWalk : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        addNamed("W1", 0, 0);
        addNamed("W2", 0, 20);
        addNamed("W3", 0, 50);
    }
    void TearDown() override {
        chapterFlags.fill(0);
        EngineFixture::TearDown();
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

} // namespace
