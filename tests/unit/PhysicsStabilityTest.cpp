#include "PhysicsBodies.h"
#include "Random.h"
#include "physicsModule/PhysicsModule.h"
#include "support/EngineFixture.h"

#include <cmath>
#include <numbers>
#include <vector>

// Scenes that the solver's settings were chosen by.

namespace {

class PhysicsStabilityTest : public EngineFixture {
protected:
    static float drawBetween(float low, float high) {
        return low + (high - low) * static_cast<float>(drawRandom()) / 32767.0F;
    }

    static std::vector<float> regularOutline(float radius, int corners) {
        std::vector<float> points;
        for (int i = 0; i < corners; ++i) {
            const float angle = 2.0F * std::numbers::pi_v<float> * static_cast<float>(i) /
                                static_cast<float>(corners);
            points.push_back(radius * std::cos(angle));
            points.push_back(radius * std::sin(angle));
        }
        return points;
    }

    static PhysicsObject* makeMixed(int i, float x, float y, float size) {
        switch (i % 3) {
        case 0:
            return createBox(x, y, size, size * drawBetween(0.5F, 1.2F), 0, 0.5F, 1);
        case 1:
            return createSphere(x, y, size, 0, 0.5F, 1);
        default:
            return createConvex(regularOutline(size, 3 + i % 5), x, y, 0, 0.5F, 1);
        }
    }
};

} // namespace

TEST_F(PhysicsStabilityTest, ATowerOfEightCratesStandsForAMinute) {
    constexpr float half = 20;
    addBox(0, -50, 500, 50, 0);
    std::vector<SceneObject*> crates;
    for (int i = 0; i < 8; ++i) {
        crates.push_back(addBox(0, half + 2 * half * static_cast<float>(i), half, half, 1));
    }
    step(60 * 60);
    for (std::size_t i = 0; i < crates.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR(originOf(*crates[i]).x(), 0, 2);
        EXPECT_NEAR(originOf(*crates[i]).y(), half + 2 * half * static_cast<float>(i), 2);
    }
}

TEST_F(PhysicsStabilityTest, AMixedPileOfSixtyComesToRestInItsBin) {
    addBox(0, -50, 500, 50, 0);
    addBox(-260, 500, 50, 600, 0);
    addBox(260, 500, 50, 600, 0);
    std::vector<SceneObject*> pile;
    for (int i = 0; i < 60; ++i) {
        const float x = drawBetween(-180, 180);
        const float size = drawBetween(10, 25);
        pile.push_back(addToScene(makeMixed(i, x, 60.0F + 45.0F * static_cast<float>(i), size)));
    }
    step(40 * 60);
    std::vector<btVector3> before;
    for (const SceneObject* object : pile) {
        before.push_back(originOf(*object));
    }
    step(10 * 60);
    float moved = 0;
    for (std::size_t i = 0; i < pile.size(); ++i) {
        moved += (originOf(*pile[i]) - before[i]).length() / static_cast<float>(pile.size());
        EXPECT_GT(originOf(*pile[i]).y(), 0);
        EXPECT_LT(std::fabs(originOf(*pile[i]).x()), 210);
    }
    EXPECT_LT(moved, 3); // units in ten seconds, on average
}

TEST_F(PhysicsStabilityTest, NothingThrownAtFullStrengthPassesAWall) {
    constexpr float fullStrength = 850;
    addBox(0, 0, 10, 400, 0);
    for (const float size : {2.0F, 5.0F, 10.0F, 20.0F}) {
        for (int i = 0; i < 30; ++i) {
            SCOPED_TRACE(testing::Message() << "size " << size << ", throw " << i);
            PhysicsObject* physics = makeMixed(i, -200.0F - 0.4F * static_cast<float>(i), 0, size);
            SceneObject* thrown = addToScene(physics);
            physics->body->setGravity(btVector3(0, 0, 0));
            physics->body->setLinearVelocity(
                btVector3(fullStrength, 0.1F * static_cast<float>(i), 0));
            physics->body->setAngularVelocity(btVector3(0, 0, 0.3F * static_cast<float>(i)));
            step(40);
            EXPECT_LT(originOf(*thrown).x(), 0);
            EXPECT_LT(physics->body->getLinearVelocity().length(), fullStrength * 1.05F);
            sceneManager().removeSceneObject(thrown);
        }
    }
}
