#include "support/EngineFixture.h"

#include "People.h"
#include "game/commands/Monsters.h"
#include "game/commands/NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/Hands.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <algorithm>

// The fight with the ghost, hit by hit.

namespace {

class Ghost : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        chapterFlags.fill(0);
    }
    void TearDown() override {
        chapterFlags.fill(0);
        EngineFixture::TearDown();
    }

    /// One that fights and has nowhere to fly to.
    static Player* addFighter(float x, float y) {
        Player& ghost = makeGuide();
        putAt(ghost, {x, y, 0});
        ghost.addAddition(parseScript("CH13BATTLE"));
        sceneManager().addSceneObject(&ghost);
        return &ghost;
    }
};

TEST_F(Ghost, IsBeatenByTheFifthGrabAndThrowsWhoeverSeizesItAway) {
    Player* ghost = addFighter(0, 300);
    TestPlayer* player = addProtagonist(-25, 300);
    auto& hands = static_cast<Hands&>(*player->equipment->current);
    hands.primaryDown();
    player->keys |= playerKey::primary;
    for (int grab = 1; grab <= 5; ++grab) {
        putAt(*player, {-25, 300, 0});
        player->physicsObject->body->setLinearVelocity({0, 0, 0});
        for (int i = 0; i < 60 && chapterFlags[1] < grab; ++i) {
            putAt(*player, {-25, 300, 0});
            step();
        }
        ASSERT_EQ(chapterFlags[1], grab);
        EXPECT_EQ(hands.heldObject(), nullptr);
        EXPECT_LT(player->physicsObject->body->getLinearVelocity().x(), -50) << "away from it";
        EXPECT_NE(ghost->findAddition(AdditionType::customCallback), nullptr);
    }
    step();
    EXPECT_EQ(ghost->findAddition(AdditionType::customCallback), nullptr);
    EXPECT_EQ(player->statistics.health, 300);
    EXPECT_EQ(graphicsModule().ambientTarget, (Colour3{1.0F, 0.3F, 0.3F}));
}

TEST_F(Ghost, ThatAnnoysIsGoneWhenItIsSeizedAndDragsNobodyAlong) {
    addBox(0, 235, 2000, 50, 0); // ends 15 below the protagonist
    addNamed("ANPOS", 100, 400);
    TestPlayer* player = addProtagonist(0, 300);
    runScript("LOCK CH13PUTANNOING REMOVESCRIPT");
    step(200);
    SceneObject* ghost = sceneManager().getSceneObject("ANNOING");
    ASSERT_NE(ghost, nullptr);
    EXPECT_LT(originOf(*ghost).distance(originOf(*player)), 200) << "comes along";
    static_cast<Hands&>(*player->equipment->current).primaryDown();
    player->keys |= playerKey::primary;
    for (int i = 0; i < 60 && sceneManager().getSceneObject("ANNOING") != nullptr; ++i) {
        putAt(*player, originOf(*ghost) - btVector3(25, 0, 0));
        step();
    }
    EXPECT_EQ(sceneManager().getSceneObject("ANNOING"), nullptr);
    EXPECT_TRUE(physicsModule().getJoints().empty());
}

TEST_F(Ghost, LetsMonstersOutNowAndThenAndTauntsTheDead) {
    Player* ghost = addFighter(0, 300);
    addProtagonist(5000, 300);
    std::size_t most = 0;
    int times = 0;
    for (int i = 0; i < 24 * 250; ++i) {
        const std::size_t before = monsters().size();
        step();
        most = std::max(most, std::max(monsters().size(), before) - before);
        times += monsters().size() > before ? 1 : 0;
    }
    EXPECT_GT(times, 12);
    EXPECT_LT(times, 24) << "sometimes it lets none out";
    EXPECT_TRUE(most == 2 || most == 3 || most == 5);

    EXPECT_FALSE(ghost->isSpeaking());
    sceneManager().removeSceneObject(sceneManager().player);
    sceneManager().player = nullptr;
    step(2);
    EXPECT_TRUE(ghost->isSpeaking());
}

} // namespace
