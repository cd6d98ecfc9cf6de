#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float stepSeconds = 1.0F / 60.0F;

/// A character of radius 15 that stands on the middle of a wide floor whose top is at 0.
class PlayerTest : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        floor = addBox(0.0F, -50.0F, 2000.0F, 50.0F, 0.0F);
        player = addPlayer(0.0F, 15.0F);
        step(25); // past the first steps, in which nobody can jump
    }

    btVector3 velocity() const { return bodyOf(*player).getLinearVelocity(); }
    btVector3 place() const { return originOf(*player); }
    /// The highest that the character comes when the key is held for that many steps.
    float apexOfJump(int heldSteps) {
        player->keys = playerKey::up;
        step(heldSteps);
        player->keys = 0;
        float apex = place().y();
        for (int i = 0; i < 120; ++i) {
            step();
            apex = std::max(apex, place().y());
        }
        return apex;
    }

    SceneObject* floor = nullptr;
    Player* player = nullptr;
};

} // namespace

TEST_F(PlayerTest, WalksToTopSpeedAndStandsStillAtOnce) {
    EXPECT_EQ(player->supportNow, floor);
    player->keys = playerKey::right;
    step(1);
    EXPECT_NEAR(velocity().x(), 50.0F, 0.5F); // a fifth of the way
    step(60);
    EXPECT_NEAR(velocity().x(), 250.0F, 1.0F);
    player->keys = playerKey::left | playerKey::right;
    step(60);
    EXPECT_NEAR(velocity().x(), -250.0F, 1.0F);
    player->keys = 0;
    step(1);
    EXPECT_EQ(velocity().x(), 0.0F);
}

TEST_F(PlayerTest, InTheAirAStepWithoutKeysLeavesFourFifths) {
    put(*player, 0.0F, 500.0F);
    bodyOf(*player).setLinearVelocity({100.0F, 0.0F, 0.0F});
    step(30);
    EXPECT_NEAR(velocity().x(), 100.0F * std::pow(0.8F, 30.0F), 0.1F);
    EXPECT_NEAR(velocity().y(), -640.0F * 30.0F * stepSeconds, 1.0F);
}

TEST_F(PlayerTest, AWallStopsTheBlendButNotTheShift) {
    // In the air, where no ground ends the look for walls.
    addBox(-25.0F, 500.0F, 10.0F, 400.0F, 0.0F);
    put(*player, 0.0F, 500.0F);
    step(2);
    const float before = place().x();
    const float speed = velocity().x();
    player->keys = playerKey::left;
    player->update();
    EXPECT_EQ(velocity().x(), speed);
    EXPECT_NEAR(place().x(), before - 0.01F, 1e-4F);
    player->keys = playerKey::right;
    player->update();
    EXPECT_GT(velocity().x(), 40.0F);
}

TEST_F(PlayerTest, HoldingTheKeyRaisesTheJump) {
    const float tap = apexOfJump(1);
    const float held = apexOfJump(20);
    EXPECT_NEAR(tap, 15.0F + 170.0F * 170.0F / (2.0F * 640.0F), 4.0F);
    EXPECT_GT(held, tap + 40.0F);
}

TEST_F(PlayerTest, JumpsStartTwentyOneStepsApart) {
    player->keys = playerKey::up;
    step(1);
    EXPECT_NEAR(velocity().y(), 170.0F, 0.5F);
    player->keys = 0;
    put(*player, 0.0F, 15.0F);
    step(5);
    ASSERT_EQ(player->supportNow, floor);
    step(14);
    EXPECT_FALSE(player->jump()); // 20 steps since the take-off
    step(1);
    EXPECT_TRUE(player->jump());
}

TEST_F(PlayerTest, AJumpAfterTheLedgeHasSeventeenSteps) {
    for (const auto& [stepsInAir, jumps] : {std::pair{17, true}, std::pair{18, false}}) {
        put(*player, 0.0F, 15.0F);
        step(40);
        put(*player, 0.0F, 800.0F);
        step(stepsInAir - 1);
        player->keys = playerKey::up;
        step(1);
        EXPECT_EQ(velocity().y() > 100.0F, jumps) << stepsInAir;
        player->keys = 0;
        step(1);
    }
}

TEST_F(PlayerTest, ALedgeThatHasGoneServesNoJump) {
    SceneObject* ledge = addBox(0.0F, 490.0F, 50.0F, 10.0F, 0.0F);
    put(*player, 0.0F, 515.0F);
    step(25);
    ASSERT_EQ(player->supportNow, ledge);
    sceneManager().removeSceneObject(ledge);
    player->keys = playerKey::up;
    step(2);
    EXPECT_LT(velocity().y(), 0.0F);
}

TEST_F(PlayerTest, RidesWhatMovesAndPushesItBackwards) {
    SceneObject* raft = addBox(0.0F, 510.0F, 100.0F, 10.0F, 5.0F);
    btRigidBody& raftBody = *raft->physicsObject->body;
    raftBody.setGravity({0.0F, 0.0F, 0.0F});
    raftBody.setLinearFactor({1.0F, 0.0F, 0.0F});
    raftBody.setAngularFactor({0.0F, 0.0F, 0.0F});
    raftBody.setLinearVelocity({30.0F, 0.0F, 0.0F});
    put(*player, 0.0F, 535.0F);
    step(10);
    ASSERT_EQ(player->supportNow, raft);
    EXPECT_NEAR(velocity().x(), 30.0F, 0.01F);
    player->keys = playerKey::right;
    step(1);
    EXPECT_NEAR(raftBody.getLinearVelocity().x(), 30.0F - 20.0F / 5.0F, 0.01F);
    // A support so light that the push would send it off gets the bare push as velocity times it.
    raftBody.setMassProps(0.5F, {0.0F, 0.0F, 1.0F});
    const float before = raftBody.getLinearVelocity().x();
    player->moveRight();
    EXPECT_NEAR(raftBody.getLinearVelocity().x(), before - 20.0F, 0.01F);
}

TEST_F(PlayerTest, WalksToItsTargetAndLetsGo) {
    player->setWalkTarget({200.0F, 15.0F, 0.0F});
    EXPECT_EQ(player->keys, playerKey::right | playerKey::down);
    step(120);
    EXPECT_NEAR(place().x(), 200.0F, 15.0F);
    EXPECT_EQ(player->keys, 0U);
    player->keys = playerKey::left;
    player->setWalkTarget({place().x(), 400.0F, 0.0F}); // overhead: left stays as it was
    EXPECT_EQ(player->keys, playerKey::left | playerKey::up);
}

TEST_F(PlayerTest, SwimsByStrokes) {
    player->waterCount = 1;
    put(*player, 0.0F, 500.0F);
    step(1);
    player->keys = playerKey::up | playerKey::down | playerKey::right;
    step(1);
    EXPECT_NEAR(velocity().y(), 170.0F - 2.0F * 640.0F * stepSeconds, 1.0F);
    EXPECT_NEAR(velocity().x(), 25.0F, 0.1F);
    step(5);
    EXPECT_LT(velocity().y(), 130.0F); // no second stroke yet
    player->keys = playerKey::down;
    step(16);
    EXPECT_TRUE(player->noLegTuck);
}

TEST_F(PlayerTest, ArmourTakesItsShareAndDeathComesBelowZero) {
    player->statistics.armor = 50.0F;
    player->hurt(15);
    EXPECT_EQ(player->statistics.health, 92);
    player->statistics.health = 0;
    player->say("ah", 100);
    step(1);
    EXPECT_EQ(sceneManager().player, player);
    player->statistics.health = -1;
    step(1);
    EXPECT_EQ(sceneManager().player, nullptr);
    EXPECT_EQ(shownLine(), "");
    EXPECT_EQ(sceneManager().debrisCount(), 1U);
}
