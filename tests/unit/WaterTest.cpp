#include "support/EngineFixture.h"

#include "People.h"
#include "TextStream.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/WaterGraphics.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/So_Addons/WaterAddition.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr float weight = 640.0F; // of a body of mass 1
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

WaterGraphics makeWaves(float right, float top) {
    return {0, -50, right, top, -1, 0, 1, 1, 1, 1, 1, 1};
}

float levelAt(const WaterGraphics& water, std::size_t column) {
    return water.getData().vertices.at(column * 2 + 1);
}

/// Waters of 400 by 200 units whose level is at 0, and what is put into them.
class WaterTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"uwater", "breath", "gulp0", "gulp1", "gulp2", "plum0", "plum1", "plum2",
                     "plum3", "plum4", "plum5", "unplum0", "unplum1", "unplum2", "unplum3",
                     "unplum4", "unplum5"});
    }

    template <class Graphics>
    SceneObject* addWater(float x = 0.0F) {
        PhysicsObject* physics = createBox(x, -100.0F, 200.0F, 100.0F, 0.0F, 0.5F, 0.0F);
        auto* graphics = new Graphics(-200, -100, 200, 100, -1, 0, 1, 1, 0.2F, 0.4F, 0.6F, 0.5F);
        graphics->setPhysicsObject(physics);
        SceneObject* water = letThrough(new SceneObject({physics, graphics}));
        water->addAddition(new WaterAddition(0.0F));
        sceneManager().addSceneObject(water);
        step(1); // what it holds now is no splash
        return water;
    }
    static WaterGraphics& wavesOf(const SceneObject& water) {
        return dynamic_cast<WaterGraphics&>(*water.graphicsObject);
    }
    static float deepestHit(const SceneObject& water) {
        return *std::ranges::min_element(wavesOf(water).getSpeeds());
    }

    /// A crate that came from elsewhere: what begins in the water does not splash.
    static SceneObject* addTravelled(float x, float y, float speed, int kind = 1) {
        PhysicsObject* physics = createBox(x, y, 20.0F, 20.0F, 0.0F, 0.5F, 1.0F);
        physics->kind = kind;
        SceneObject* object = addToScene(physics);
        object->age = 2;
        place(*object, x, y, speed);
        return object;
    }
    /// Puts it there, upright, with the ears beside it.
    static void place(const SceneObject& object, float x, float y, float speed = 0.0F) {
        bodyOf(object).setWorldTransform(btTransform(btMatrix3x3::getIdentity(), {x, y, 0.0F}));
        bodyOf(object).setLinearVelocity({0.0F, speed, 0.0F});
        graphicsModule().camera->setView(x, y, 1.0F);
    }
    void stepAt(const SceneObject& object, float x, float y, float speed = 0.0F) {
        place(object, x, y, speed);
        step(1);
    }
    /// What the waters give in a step in which the object stays where it is.
    static float liftOf(const SceneObject& object, std::initializer_list<SceneObject*> waters) {
        bodyOf(object).clearForces();
        for (SceneObject* water : waters) {
            water->update();
        }
        return bodyOf(object).getTotalForce().y();
    }

    /// What runs, with the digit of a splash as N; then silence.
    std::string heard() const { return mixer->takeRunning({"plum"}); }
};

/// The protagonist over a water with waves.
class SwimTest : public WaterTest {
protected:
    void SetUp() override {
        WaterTest::SetUp();
        water = addWater<WaterGraphics>();
        player = addProtagonist(0.0F, 100.0F);
        player->clearAdditions(); // no heartbeat
        stay(100.0F, 2);
        heard();
    }
    void stay(float y, int steps) {
        for (int i = 0; i < steps; ++i) {
            stepAt(*player, 0.0F, y);
        }
    }

    SceneObject* water = nullptr;
    TestPlayer* player = nullptr;
};

} // namespace

TEST_F(WaterTest, ColumnsStandTenUnitsApartAndTheLastShortOfTheRight) {
    const std::pair<float, std::size_t> rows[] = {
        {200, 20}, {200.5F, 21}, {0, 0}, {1e9F, 20'000}, {notANumber, 0}};
    for (const auto& [right, columns] : rows) {
        const StaticWaterGraphics water(0, 0, right, 50, -1, 0, 1, 1, 1, 1, 1, 1);
        EXPECT_EQ(water.getData().vertices.size() / 2, columns) << right;
    }
    EXPECT_EQ(makeWaves(30, 60).getLocalBounds().top, 210.0F) << "room for waves";
}

TEST_F(WaterTest, AHitRunsToBothSidesAlikeAndDiesAway) {
    constexpr std::size_t middle = 20;
    WaterGraphics water = makeWaves(410, 7);
    water.splash(200.0F, 0.0F, -250.0F);
    const auto farthest = [&water](int steps, std::size_t columns) {
        std::pair<int, float> most{0, 0.0F}; // when, and how far from the rest
        for (int i = 0; i < steps; ++i) {
            water.updateSurface();
            for (std::size_t k = 0; k < columns; ++k) {
                if (const float y = levelAt(water, middle + k) - 7.0F;
                    std::abs(y) > std::abs(most.second)) {
                    most = {i, y};
                }
            }
        }
        return most;
    };
    const auto [when, depth] = farthest(25, 1);
    EXPECT_NEAR(depth, -41.0F, 2.0F);
    EXPECT_NEAR(when, 17, 2);
    for (std::size_t k = 1; k < 15; ++k) {
        EXPECT_NEAR(levelAt(water, middle - k), levelAt(water, middle + k), 1.5F) << k;
    }
    EXPECT_LT(levelAt(water, middle + 4), 0.0F) << "on its way";
    EXPECT_NEAR(levelAt(water, middle + 12), 7.0F, 0.1F) << "not there yet";
    farthest(1000, 1);
    EXPECT_LT(std::abs(farthest(200, middle).second), 8.0F) << "ripples alone are left";
    EXPECT_TRUE(water.getDroplets().empty()) << "for which they are too soft";

    for (const std::size_t columns : {3U, 4U, 5U}) { // hardly any neighbours to lean on
        WaterGraphics puddle = makeWaves(static_cast<float>(columns) * 10.0F, 7);
        puddle.splash(15.0F, 10.0F, -100.0F);
        for (int i = 0; i < 600; ++i) {
            puddle.updateSurface();
        }
        EXPECT_NEAR(levelAt(puddle, 1), 7.0F, 15.0F) << columns;
        EXPECT_EQ(puddle.getDisturbance() > 0.0F, columns > 4) << columns;
    }
}

TEST_F(WaterTest, AHitPushesTheColumnsUnderItAndTheirNeighboursAndThrowsDroplets) {
    WaterGraphics soft = makeWaves(100, 0);
    soft.splash(50.0F, 20.0F, -16.0F);
    const float third = -16.0F * 1.25F / 3.0F;
    const std::vector<float> pushed{0, 0, third, -10, -16, -16, -16, -10, third, 0};
    EXPECT_EQ(soft.getSpeeds(), pushed);
    soft.splash(-10.0F, 10.0F, 16.0F); // half over the edge
    EXPECT_EQ(soft.getSpeeds()[0], 10.0F);

    const auto dropletsOf = [](float force, float width) {
        WaterGraphics water = makeWaves(100, 0);
        water.splash(50.0F, width, force);
        return water.getDroplets().size();
    };
    EXPECT_EQ(dropletsOf(19.9F, 20.0F), 0U);
    EXPECT_EQ(dropletsOf(20.0F, 20.0F), 3U + 2U) << "one along every ten units, one at each edge";
    EXPECT_EQ(dropletsOf(-250.0F, 20.0F), 3U + 2U * 13U);
    EXPECT_LE(dropletsOf(1e30F, 1e30F), 20'000U);
    EXPECT_EQ(dropletsOf(notANumber, 20.0F) + dropletsOf(100.0F, notANumber), 0U);

    WaterGraphics busy = makeWaves(100, 0);
    busy.splash(50.0F, 100.0F, 3000.0F);
    busy.updateSurface();
    ASSERT_GT(busy.getDisturbance(), 10.0F);
    const std::size_t thrown = busy.getDroplets().size();
    busy.splash(50.0F, 20.0F, 100.0F);
    EXPECT_EQ(busy.getDroplets().size(), thrown);
}

TEST_F(WaterTest, WaterTooNarrowForWavesSaysSoAndStaysStraight) {
    testing::internal::CaptureStdout();
    WaterGraphics narrow = makeWaves(20, 30);
    const std::string said = testing::internal::GetCapturedStdout();
    EXPECT_NE(said.find("a water narrower than 3 columns has no waves\n"), std::string::npos);
    narrow.splash(10.0F, 20.0F, 250.0F);
    narrow.updateSurface();
    EXPECT_TRUE(narrow.getDroplets().empty());
    EXPECT_EQ(levelAt(narrow, 1), 30.0F);
    for (const float right : {0.0F, -50.0F, 5.0F}) {
        WaterGraphics none = makeWaves(right, 30);
        none.updateSurface();
        none.draw();
    }
    testing::internal::CaptureStdout();
    makeWaves(20.5F, 30);
    EXPECT_EQ(testing::internal::GetCapturedStdout().find("waves"), std::string::npos);
}

TEST_F(WaterTest, LiftIsTheCoveredShareInStillWaterAndWholeInWaves) {
    SceneObject* still = addWater<StaticWaterGraphics>();
    SceneObject* crate = addTravelled(0.0F, -50.0F, 0.0F);
    const auto liftAt = [&](SceneObject* water, float y) {
        stepAt(*crate, 0.0F, y);
        place(*crate, 0.0F, y);
        return liftOf(*crate, {water});
    };
    EXPECT_NEAR(liftAt(still, -50.0F), weight * 0.7F, 0.01F);
    EXPECT_NEAR(liftAt(still, 10.0F), weight * 0.7F * 0.25F, 1.5F);
    EXPECT_EQ(bodyOf(*crate).getLinearDamping(), 0.9F);
    EXPECT_EQ(bodyOf(*crate).getAngularDamping(), 0.9F);
    crate->physicsObject->waterFactor = 1.0F;
    EXPECT_NEAR(liftAt(still, -50.0F), weight, 0.01F) << "hovers";
    sceneManager().removeSceneObject(still);
    EXPECT_EQ(crate->waterCount, 0);
    EXPECT_NEAR(liftAt(addWater<WaterGraphics>(), 15.0F), weight, 0.01F) << "whatever its depth";
}

TEST_F(WaterTest, WhatLiesTiltedAtTheSurfaceOfStillWaterTurnsToLieFlat) {
    SceneObject* still = addWater<StaticWaterGraphics>();
    SceneObject* plank = addBox(0.0F, 0.0F, 60.0F, 10.0F, 1.0F);
    const auto torqueAt = [&](float y, float tilt) {
        stepAt(*plank, 0.0F, y);
        bodyOf(*plank).getWorldTransform().setRotation(btQuaternion(btVector3(0, 0, 1), tilt));
        liftOf(*plank, {still});
        return bodyOf(*plank).getTotalTorque().z();
    };
    EXPECT_LT(torqueAt(0.0F, 0.4F), -100.0F);
    EXPECT_GT(torqueAt(0.0F, -0.4F), 100.0F);
    EXPECT_EQ(torqueAt(-100.0F, 0.4F), 0.0F) << "not under it";
}

TEST_F(WaterTest, WhatFallsInSplashesBySpeed) {
    SceneObject* water = addWater<WaterGraphics>();
    addTravelled(0.0F, -20.0F, -500.0F)->age = 0; // made in the water
    step(1);
    EXPECT_TRUE(wavesOf(*water).getDroplets().empty());
    addTravelled(100.0F, 15.0F, -1500.0F);
    step(1);
    EXPECT_NEAR(static_cast<float>(wavesOf(*water).getDroplets().size()), 5.0F + 2 * 13.0F, 1.0F);
    EXPECT_NEAR(deepestHit(*water), -250.0F, 5.0F);
    EXPECT_TRUE(heard().starts_with("plumN.wav 12")); // 128, less a little way

    water = addWater<WaterGraphics>(1000.0F);
    addTravelled(1000.0F, 15.0F, -1500.0F, 2); // a rope's end hits softer
    step(1);
    EXPECT_NEAR(deepestHit(*water), -41.67F, 1.0F);
}

TEST_F(WaterTest, WhatLeavesWavesSplashesAndIsDampedAsBefore) {
    SceneObject* water = addWater<WaterGraphics>();
    SceneObject* crate = addTravelled(0.0F, -20.0F, 0.0F);
    step(1);
    stepAt(*crate, 0.0F, 60.0F, 300.0F);
    EXPECT_EQ(crate->waterCount, 0);
    EXPECT_EQ(bodyOf(*crate).getLinearDamping(), 0.0F);
    EXPECT_EQ(bodyOf(*crate).getAngularDamping(), 0.0F);
    EXPECT_TRUE(heard().starts_with("unplumN.wav 2")); // 25
    EXPECT_FALSE(wavesOf(*water).getDroplets().empty());

    addWater<StaticWaterGraphics>(1000.0F); // still water keeps quiet, and its hold on the damping
    stepAt(*crate, 1000.0F, 0.0F, -300.0F);
    stepAt(*crate, 1000.0F, 60.0F, 300.0F);
    EXPECT_EQ(crate->waterCount, 0);
    EXPECT_EQ(bodyOf(*crate).getLinearDamping(), 0.9F);
    EXPECT_EQ(heard(), "");

    stepAt(*crate, 0.0F, -20.0F);
    ASSERT_EQ(crate->waterCount, 1);
    heard();
    sceneManager().removeSceneObject(crate);
    step(1); // what died in the water is not touched, as the address sanitizer sees
    EXPECT_EQ(heard(), "");
}

TEST_F(WaterTest, OverlappingWatersActOneAtATime) {
    SceneObject* first = addWater<WaterGraphics>();
    SceneObject* second = addWater<WaterGraphics>(300.0F); // together from 100 to 200
    SceneObject* crate = addTravelled(50.0F, -50.0F, 0.0F);
    step(1);
    stepAt(*crate, 150.0F, -50.0F);
    EXPECT_EQ(crate->waterCount, 2);
    EXPECT_NEAR(liftOf(*crate, {first, second}), weight * 0.7F, 0.01F);
    heard();
    stepAt(*crate, 250.0F, -50.0F, 300.0F); // the first lets go without a sound
    EXPECT_EQ(crate->waterCount, 1);
    EXPECT_EQ(heard(), "");
    EXPECT_EQ(bodyOf(*crate).getLinearDamping(), 0.9F);
    EXPECT_NEAR(liftOf(*crate, {second}), weight * 0.7F, 0.01F);

    stepAt(*crate, 150.0F, -50.0F);
    stepAt(*crate, 150.0F, 100.0F, 300.0F); // out of both at once: one splash
    EXPECT_EQ(crate->waterCount, 0);
    EXPECT_EQ(std::ranges::count(heard(), 'p'), 1);

    stepAt(*crate, 150.0F, -50.0F);
    sceneManager().removeSceneObject(first); // takes the count along, and the other goes on
    EXPECT_EQ(crate->waterCount, 0);
    step(2);
    EXPECT_EQ(crate->waterCount, 1);
    EXPECT_NEAR(liftOf(*crate, {second}), weight * 0.7F, 0.01F);
    stepAt(*crate, 150.0F, 100.0F);
    EXPECT_EQ(crate->waterCount, 0);
}

TEST_F(SwimTest, HeadUnderItHoldsItsBreathAndHeadOutOfWavesItBreathes) {
    stay(-50.0F, 413);
    EXPECT_EQ(player->waterSteps, 413);
    EXPECT_EQ(heard(), "uwater.wav 64 for ever");
    stay(-14.0F, 1); // the crown comes out
    EXPECT_EQ(heard(), "breath.wav 100") << "and the ears are open";
    EXPECT_EQ(player->waterCount, 1);
    stay(-14.0F, 50);
    EXPECT_EQ(player->waterSteps, 1) << "as the character counts after the water";
    EXPECT_EQ(heard(), "");

    sceneManager().removeSceneObject(water); // nobody minds the head in still water
    addWater<StaticWaterGraphics>();
    stay(-14.0F, 30);
    EXPECT_GE(player->waterSteps, 29);
    EXPECT_EQ(heard(), "uwater.wav 64 for ever");
}

TEST_F(SwimTest, ADiveGoesOnThroughASaveInWhateverOrderTheyAreStored) {
    stay(-50.0F, 500);
    for (const int round : {0, 1}) {
        TextWriter saved;
        writeScene(saved);
        sceneManager().clearScene();
        TextReader reader(saved.text());
        SceneBundle bundle = parseScene(reader, false);
        std::reverse(bundle.objects.begin(), bundle.objects.end());
        player = dynamic_cast<TestPlayer*>(bundle.objects[round == 0 ? 0 : 1]);
        water = bundle.objects[round == 0 ? 1 : 0];
        ASSERT_NE(player, nullptr);
        sceneManager().addScene(std::move(bundle));
        sceneManager().player = player;
        heard();
        stay(-50.0F, 10);
        EXPECT_EQ(player->waterSteps, 510 + 10 * round);
        EXPECT_EQ(player->waterCount, 1);
        EXPECT_TRUE(wavesOf(*water).getDroplets().empty()) << "nothing fell in";
        EXPECT_EQ(heard(), "uwater.wav 64 for ever");
    }
    stay(-14.0F, 1);
    EXPECT_EQ(heard(), "breath.wav 100");
}

TEST_F(SwimTest, ItGetsTheLiftOfItsDepthAndLeavesAsFromAJump) {
    stay(-50.0F, 60);
    EXPECT_NEAR(liftOf(*player, {water}), weight * 0.9F, 0.01F);
    stay(0.0F, 1);
    EXPECT_NEAR(liftOf(*player, {water}), weight * 0.45F, 5.0F);
    heard();
    stay(60.0F, 1);
    EXPECT_EQ(player->waterCount, 0);
    EXPECT_EQ(bodyOf(*player).getLinearDamping(), 0.5F);
    EXPECT_EQ(bodyOf(*player).getAngularDamping(), 0.0F);
    EXPECT_EQ(heard().find("uwater"), std::string::npos);
    const float before = bodyOf(*player).getLinearVelocity().y();
    player->jump(); // with nothing underfoot, the key lifts who has just jumped
    EXPECT_GT(bodyOf(*player).getLinearVelocity().y(), before);
}
