#include "soundModule/SoundManager.h"

#include "support/EngineFixture.h"

#include "Random.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"

#include <gmock/gmock.h>

namespace {

constexpr SoundOwner one = 101;
constexpr SoundOwner two = 102;
const btVector3 nowhere(0.0F, 0.0F, 0.0F);

class SoundManagerTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        writeSounds({"hum", "step", "heart"});
        for (int k = 0; k <= 10; ++k) {
            directory.write("sound/breath" + std::to_string(k) + ".wav", "");
        }
        directory.write("music/a.ogg", "");
        directory.write("music/b.ogg", "");
    }

    /// A place that far from the camera.
    static btVector3 away(float distance) {
        const Camera& camera = *graphicsModule().camera;
        return {camera.getX() + distance, camera.getY(), 0.0F};
    }

    std::string running() const { return mixer->running(); }
    SoundManager& sounds() const { return soundManager(); }
};

} // namespace

TEST_F(SoundManagerTest, ASoundOfAnOwnerRunsOnceAndIsThenOnlyMadeLouderOrSofter) {
    sounds().play("hum.wav", nowhere, one, 128, false);
    sounds().play("hum.wav", away(100), one, 128, false);
    EXPECT_EQ(running(), "hum.wav 120 for ever");
    sounds().play("hum.wav", away(100), two, 64, false);
    EXPECT_EQ(running(), "hum.wav 120 for ever hum.wav 60 for ever") << "two owners";
    sounds().play("step.wav", nowhere, one, 3, true);
    EXPECT_EQ(running(), "hum.wav 120 for ever hum.wav 60 for ever step.wav 3");

    sounds().play("hum.wav", away(1100), one, 128, false);
    sounds().play("step.wav", nowhere, one, 0, true);
    EXPECT_EQ(running(), "hum.wav 60 for ever") << "silence ends a sound";
    sounds().play("hum.wav", away(1100), one, 128, false);
    sounds().play("hum.wav", nowhere, one, 0, false);
    sounds().play("no such.wav", nowhere, one, 128, false);
    EXPECT_EQ(running(), "hum.wav 60 for ever") << "and starts none";
    sounds().play("hum.wav", nowhere, one, 128, false);
    EXPECT_EQ(running(), "hum.wav 128 for ever hum.wav 60 for ever");
}

TEST_F(SoundManagerTest, OneShotsOverlapAndBelongToNobody) {
    sounds().playFlat("step.wav", 50);
    sounds().playFlat("step.wav", 0);
    sounds().playAt("step.wav", away(100));
    sounds().playAt("step.wav", away(1100));
    sounds().playFlat("no such.wav", 50);
    EXPECT_EQ(running(), "step.wav 50 step.wav 0 step.wav 120");
    sounds().stop("step.wav", one);
    sounds().stopOwner(one);
    EXPECT_EQ(running(), "step.wav 50 step.wav 0 step.wav 120");
}

TEST_F(SoundManagerTest, StopEndsAnOwnersSoundStopAllEverybodysAndStopOwnerAllOfOne) {
    const auto playAll = [this] {
        for (const SoundOwner owner : {one, two}) {
            sounds().play("hum.wav", nowhere, owner, 128, false);
            sounds().play("step.wav", nowhere, owner, static_cast<std::uint8_t>(owner), false);
        }
    };
    playAll();
    sounds().stop("hum.wav", one);
    sounds().stop("no such.wav", two);
    EXPECT_EQ(running(), "step.wav 101 for ever hum.wav 128 for ever step.wav 102 for ever");
    playAll();
    sounds().stopAll("hum.wav");
    sounds().stopAll("no such.wav");
    EXPECT_EQ(running(), "step.wav 101 for ever step.wav 102 for ever");
    playAll();
    mixer->endSound(1);
    sounds().playFlat("heart.wav", 7); // where the owner had a sound before
    sounds().stopOwner(one);
    EXPECT_EQ(running(), "heart.wav 7 hum.wav 128 for ever step.wav 102 for ever");
}

TEST_F(SoundManagerTest, WithAllChannelsTakenASoundIsReportedAndLeftOut) {
    for (int i = 0; i < Mixer::channelCount; ++i) {
        sounds().play("hum.wav", nowhere, one + static_cast<SoundOwner>(i), 128, false);
    }
    testing::internal::CaptureStderr();
    sounds().play("step.wav", nowhere, one, 128, true);
    sounds().playFlat("step.wav", 128);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to play sound: silent mixer\n")
        << "once until something changes";
    EXPECT_THAT(running(), testing::Not(testing::HasSubstr("step")));
    mixer->endSound(7);
    sounds().update(); // a new step
    sounds().playFlat("step.wav", 90);
    EXPECT_THAT(running(), testing::HasSubstr("step.wav 90"));
    sounds().stop("hum.wav", one);
    sounds().playFlat("heart.wav", 80);
    EXPECT_THAT(running(), testing::HasSubstr("heart.wav 80"));
}

TEST_F(SoundManagerTest, MusicFadesOutBeforeTheNextFadesInEvenWhileThePhysicsStands) {
    physicsModule().active = false;
    sounds().playMusic("a.ogg");
    sounds().playMusic("a.ogg");
    EXPECT_EQ(mixer->music, "a.ogg");
    EXPECT_EQ(mixer->musicStarts, 1);
    EXPECT_FALSE(mixer->fadingOut);

    sounds().playMusic("theme.ogg");
    EXPECT_EQ(sounds().currentMusic, "theme.ogg");
    sounds().playMusic("b.ogg");
    sounds().playMusic("no such.ogg");
    EXPECT_TRUE(mixer->fadingOut);
    frame(2);
    EXPECT_EQ(mixer->music, "a.ogg") << "till it is silent";
    mixer->endMusic();
    frame(2);
    EXPECT_EQ(mixer->music, "b.ogg");
    EXPECT_EQ(sounds().currentMusic, "b.ogg");
    EXPECT_EQ(mixer->musicStarts, 2);
}

TEST_F(SoundManagerTest, NoMusicComesBackAfterAnEmptyNameUntilSomeIsAskedFor) {
    sounds().playMusic("");
    sounds().playMusic("no such.ogg");
    EXPECT_EQ(sounds().currentMusic, "");
    sounds().playMusic("a.ogg");
    sounds().playMusic("");
    EXPECT_TRUE(mixer->fadingOut);
    mixer->endMusic();
    frame(2);
    EXPECT_EQ(mixer->music, "");
    EXPECT_EQ(sounds().currentMusic, "");

    sounds().playMusic("a.ogg");
    mixer->endMusic();
    sounds().playMusic("a.ogg"); // before the loop has heard of the end
    frame(2);
    EXPECT_EQ(mixer->music, "a.ogg");
    EXPECT_EQ(mixer->musicStarts, 3);
}

TEST_F(SoundManagerTest, TheHeartBeatsAsLoudAsItIsToldWhileSomebodyAsksForIt) {
    const auto heartAfter = [this](int requests, float volume) {
        sounds().heartCount = requests;
        sounds().heartVolume = volume;
        sounds().update();
        return running();
    };
    EXPECT_EQ(heartAfter(1, 0.0F), "");
    EXPECT_EQ(heartAfter(1, 40.9F), "heart.wav 40 for ever");
    EXPECT_EQ(heartAfter(2, 500.0F), "heart.wav 128 for ever");
    EXPECT_EQ(heartAfter(1, 0.5F), "");
    EXPECT_EQ(heartAfter(1, 1.0F), "heart.wav 1 for ever");
    EXPECT_EQ(heartAfter(0, 1.0F), "");
    sounds().heartVolume = 9.0F;
    sounds().heartCount = 1;
    step();
    EXPECT_EQ(running(), "") << "a step asks anew, and nobody is there to answer";
}

TEST_F(SoundManagerTest, BreathsComeAtRandomPausesThatShrinkWithFear) {
    sounds().fearLevel = 40;
    sounds().update();
    EXPECT_EQ(running(), "") << "calm";

    sounds().fearPeriod = 60.0F;
    for (int breath = 0; breath < 20; ++breath) {
        const std::uint32_t before = randomState;
        const int pause = drawRandom() % 60 + 30;
        const std::string name = "breath" + std::to_string(drawRandom() % 11) + ".wav 40";
        randomState = before;

        sounds().update();
        EXPECT_EQ(running(), name);
        mixer->endSound(0);
        for (int i = 1; i < pause; ++i) {
            sounds().update();
        }
        EXPECT_EQ(running(), "") << "a pause of " << pause;
    }
    sounds().fearLevel = 0;
    sounds().update();
    EXPECT_EQ(running(), "") << "a breath without fear";
}
