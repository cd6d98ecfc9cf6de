#include "sceneManager/TestPlayer.h"

#include "support/EngineFixture.h"

#include "People.h"
#include "Records.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/LightReaderAdd.h"
#include "graphicsModule/MultiGraphics.h"
#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/Yaw.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/Hands.h"
#include "soundModule/SoundManager.h"

#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr float quarterTurn = 1.5707964F;

/// The protagonist on the middle of a wide floor whose top is at 0, with the camera on it.
class TestPlayerTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"foot0", "foot1", "breath", "gulp0", "gulp1", "gulp2", "uh0", "uh1", "uh2",
                     "dying0", "dying1", "dying2", "diewater", "heart"});
    }

    void SetUp() override {
        EngineFixture::SetUp();
        addBox(0.0F, -50.0F, 5000.0F, 50.0F, 0.0F);
        player = addProtagonist(0.0F, 15.0F);
        step(41);
        heard();
    }

    void run(float speed) const { bodyOf(*player).setLinearVelocity({speed, 0.0F, 0.0F}); }

    LightReaderAdd& reader() const {
        return static_cast<LightReaderAdd&>(*player->findAddition(AdditionType::lightReader));
    }
    void light(int red, int green, int blue) const {
        reader().red = static_cast<std::uint8_t>(red);
        reader().green = static_cast<std::uint8_t>(green);
        reader().blue = static_cast<std::uint8_t>(blue);
    }

    /// Where the ears are: so far from the body that no sound loses anything on its way.
    void listenAt(float shift) const {
        graphicsModule().camera->setX(originOf(*player).x() + shift);
        graphicsModule().camera->setY(originOf(*player).y());
    }
    /// What runs, with the digit of a sound by chance as N. It ends with the question.
    std::string heard() const { return mixer->takeRunning({"gulp", "uh", "dying"}); }
    /// What an update of the character alone makes to be heard.
    std::string heardInUpdate() const {
        listenAt(0.0F);
        player->update();
        return heard();
    }

    static std::size_t dropsOfBlood() {
        std::size_t drops = 0;
        for (const GraphicsObject* object : graphicsModule().getObjects()) {
            const auto* emiter = dynamic_cast<const ParticleEmiter*>(object);
            if (emiter != nullptr && emiter->params.colour[0] == 1.0F) {
                drops += emiter->getParticles().size();
            }
        }
        return drops;
    }

    PhysicsGraphicsObject& part(std::size_t index) const {
        return static_cast<PhysicsGraphicsObject&>(
            *static_cast<MultiGraphics&>(*player->graphicsObject).getChildren().at(index));
    }
    float height(std::size_t index) const { return part(index).localTransform.getOrigin().y(); }
    float armAngle() const {
        const Yaw yaw = yawOf(part(3).localTransform);
        return std::atan2(yaw.sine, yaw.cosine);
    }
    void poseAt(std::uint32_t step) const {
        physicsModule().stepCount = step;
        player->update();
    }

    TestPlayer* player = nullptr;
};

} // namespace

TEST_F(TestPlayerTest, FeetFallTwiceInAStrideAsLoudAsTheyMove) {
    const auto stepAt = [this](std::uint32_t count, float speed) {
        physicsModule().stepCount = count;
        run(speed);
        const float shift = std::abs(speed) > 250.0F ? 0.0F : 0.01F;
        listenAt(speed < 0.0F ? -shift : shift); // where the step ends
        speed < 0.0F ? player->moveLeft() : player->moveRight();
        return heard();
    };
    EXPECT_EQ(stepAt(400, -250.0F), "foot0.wav 34");
    EXPECT_EQ(stepAt(420, -250.0F), "foot1.wav 34");
    EXPECT_EQ(stepAt(400, 250.0F), "foot1.wav 34");
    EXPECT_EQ(stepAt(420, 250.0F), "foot0.wav 34");
    EXPECT_EQ(stepAt(400, -125.0F), "foot0.wav 20"); // which a step has made 150
    EXPECT_EQ(stepAt(400, -1500.0F), "foot0.wav 100");
    EXPECT_EQ(stepAt(410, -250.0F), "");
    player->statistics.speed = 0.0F;
    stepAt(400, -1.0F);
    player->statistics.speed = 250.0F;
    SceneObject* ground = player->supportNow;
    player->supportNow = nullptr;
    EXPECT_EQ(stepAt(400, -250.0F), "");
    bodyOf(*ground).setLinearVelocity({-250.0F, 0.0F, 0.0F});
    player->update();
    ASSERT_EQ(player->supportNow, ground);
    heard();
    EXPECT_EQ(stepAt(400, -250.0F), "") << "the ground goes with them";
}

TEST_F(TestPlayerTest, TakeOffAndLandingSoundOnBothFeet) {
    listenAt(0.0F);
    ASSERT_TRUE(player->jump());
    EXPECT_EQ(heard(), "foot0.wav 60 foot1.wav 60");
    EXPECT_FALSE(player->jump());
    EXPECT_EQ(heard(), "");

    put(*player, 0.0F, 15.0F);
    step(1);
    heard();
    const std::pair<float, const char*> landings[] = {{50.0F, ""},
                                                      {59.0F, "foot0.wav 5 foot1.wav 5"},
                                                      {400.0F, "foot0.wav 40 foot1.wav 40"},
                                                      {1000.0F, "foot0.wav 80 foot1.wav 80"}};
    for (const auto& [impulse, sounds] : landings) {
        player->physicsObject->contacts.at(0)->getContactPoint(0).m_appliedImpulse = impulse;
        EXPECT_EQ(heardInUpdate(), sounds) << impulse;
    }
    player->clearAdditions(); // no heart
    put(*player, 0.0F, 200.0F);
    step(2);
    heard();
    std::string fall;
    for (int i = 0; i < 100; ++i) {
        listenAt(0.0F);
        step(1);
        fall += heard();
    }
    EXPECT_EQ(fall, "foot0.wav 45 foot1.wav 45"); // at 450 units a second
}

TEST_F(TestPlayerTest, TheHeartBeatsLoudestAfterTenSecondsInTheDarkAndIsCalmedByLight) {
    SoundManager& sounds = soundManager();
    light(89, 0, 0); // 29 in the mean
    sounds.heartVolume = 0.0F;
    step(600);
    EXPECT_NEAR(sounds.heartVolume, 120.0F, 0.1F);
    step(2000);
    EXPECT_EQ(sounds.heartVolume, 128.0F);
    EXPECT_EQ(sounds.fearPeriod, 60.0F);
    EXPECT_EQ(sounds.fearLevel, 40);
    EXPECT_NE(mixer->running().find("heart.wav 128 for ever"), std::string::npos);
    light(250, 100, 100);
    player->update();
    EXPECT_GT(sounds.fearPeriod, 60.0F);
    EXPECT_EQ(sounds.fearLevel, 40) << "calms by and by";
    EXPECT_LT(sounds.heartVolume, 128.0F);
    player->waterCount = 1; // nobody pants under water
    light(0, 0, 90);
    player->update();
    EXPECT_EQ(sounds.fearLevel, 0);
    sceneManager().removeSceneObject(player);
    EXPECT_EQ(sounds.fearPeriod, 300.0F);
    EXPECT_EQ(sounds.fearLevel, 0);
    EXPECT_EQ(sceneManager().player, nullptr);
    step(1);
    EXPECT_EQ(mixer->running(), "");
}

TEST_F(TestPlayerTest, TheGaspOfComingUpGrowsWithTheDive) {
    player->clearAdditions();
    const std::pair<int, const char*> dives[] = {
        {10, ""}, {50, ""}, {300, "breath.wav 64"}, {413, "breath.wav 100"}};
    for (const auto& [steps, sound] : dives) {
        player->waterSteps = steps;
        EXPECT_EQ(heardInUpdate(), sound) << steps;
        EXPECT_EQ(player->waterSteps, 0);
    }
}

TEST_F(TestPlayerTest, AWoundCriesAndBleedsAndDeathDoesMoreSo) {
    player->clearAdditions();
    const std::pair<int, std::size_t> wounds[] = {{3, 3}, {4, 1}, {100, 25}};
    for (const auto& [damage, drops] : wounds) {
        PlayerStatistics fresh;
        player->setStatistics(fresh);
        EXPECT_EQ(heardInUpdate(), "");
        const std::size_t before = dropsOfBlood();
        player->hurt(damage);
        EXPECT_EQ(heardInUpdate(), "uhN.wav 128") << damage;
        EXPECT_EQ(dropsOfBlood() - before, drops) << damage;
        EXPECT_EQ(heardInUpdate(), "");
    }
    const std::size_t before = dropsOfBlood();
    player->hurt(1);
    player->update();
    EXPECT_EQ(heard(), "dyingN.wav 128");
    EXPECT_EQ(dropsOfBlood() - before, 40U);
    EXPECT_EQ(sceneManager().debrisCount(), 4U);
    sceneManager().flushRemovals();
    EXPECT_EQ(sceneManager().player, nullptr);
}

TEST_F(TestPlayerTest, LooksWhereItWalksAndKeepsLookingThere) {
    const auto firstU = [this](std::size_t index) {
        return part(index).getData().texcoords.front();
    };
    const float arm = firstU(3);
    EXPECT_EQ(firstU(1), 0.025F);
    EXPECT_NEAR(armAngle(), -quarterTurn, 1e-4F);
    player->keys = playerKey::right;
    player->update();
    player->keys = 0;
    player->update();
    for (const std::size_t index : {0U, 1U, 2U}) {
        EXPECT_EQ(firstU(index), 0.975F);
    }
    EXPECT_EQ(firstU(3), arm);
    EXPECT_NEAR(armAngle(), quarterTurn, 1e-4F);
    player->keys = playerKey::left | playerKey::right;
    player->update();
    EXPECT_EQ(firstU(0), 0.025F);

    static_cast<Hands&>(*player->equipment->current).primaryDown();
    player->aimPoint = originOf(*player) + btVector3(20.0F, 20.0F, 0.0F);
    player->update();
    EXPECT_NEAR(armAngle(), -quarterTurn / 2.0F, 1e-4F) << "reaches for what it aims at";
}

TEST_F(TestPlayerTest, ItBreathesAtRestStridesInWalkingAndStretchesAtTheTakeOff) {
    const auto swingOf = [this](std::size_t index) {
        std::vector<float> heights;
        for (std::uint32_t i = 1000; i < 1080; ++i) {
            poseAt(i);
            heights.push_back(height(index));
        }
        const auto [least, most] = std::minmax_element(heights.begin(), heights.end());
        return *most - *least;
    };
    EXPECT_NEAR(swingOf(1), 2.8F, 0.05F);
    EXPECT_EQ(swingOf(0), 0.0F) << "feet stand still";
    player->keys = playerKey::left;
    EXPECT_NEAR(swingOf(1), 4.0F, 0.1F);
    EXPECT_NEAR(swingOf(3), 4.0F, 0.1F) << "the arm goes with the body";
    EXPECT_NEAR(swingOf(2), 6.0F, 0.1F);
    EXPECT_NEAR(height(0), -height(2), 1e-4F) << "one foot up, one down";
    player->keys = 0;
    ASSERT_TRUE(player->jump());
    poseAt(physicsModule().stepCount + 10);
    EXPECT_NEAR(height(0), -3.5F, 1e-4F);
}

TEST_F(TestPlayerTest, ARecordBringsItBackAsItWas) {
    player->keys = playerKey::right;
    player->update();
    player->waterSteps = 300;
    player->statistics.health = 55;
    const std::string written = recordOf(*player);
    TextReader reader(written);
    auto* copy = dynamic_cast<TestPlayer*>(readSceneObject(reader));
    ASSERT_NE(copy, nullptr);
    sceneManager().addSceneObject(copy);
    EXPECT_EQ(recordOf(*copy), written);
    EXPECT_EQ(copy->physicsObject->body->getLinearDamping(), 0.5F);
    EXPECT_TRUE(copy->physicsObject->body->hasAnisotropicFriction());
    heard();
    copy->update(); // looks right still, and takes the stored health for no wound
    EXPECT_EQ(heard(), "") << "who comes back in a dive dives on";
    EXPECT_EQ(copy->waterSteps, 301);
    TextWriter later;
    copy->graphicsObject->write(later);
    EXPECT_NE(written.find(later.text()), std::string::npos);
}
