#include "support/CapturedErrors.h"
#include "support/ListeningFixture.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"
#include "tools/sound/Clip.h"
#include "unit/PhysicsBodies.h"

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>

// What the sound manager promises, as it comes out of the mixer.

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::FloatNear;
using testing::Ge;
using testing::Le;

constexpr SoundOwner one = 101;
constexpr SoundOwner two = 102;
constexpr int second = 60;     // steps
constexpr int humPeriod = 240; // steps; hum.wav is a loop
const btVector3 everywhere(0.0F, 0.0F, 0.0F);

/// A sound that was asked for in that step, at that volume.
auto begins(int step, float volume) {
    return AllOf(Field(&Heard::step, AllOf(Ge(step - 2), Le(step))),
                 Field(&Heard::volume, FloatNear(volume, 0.5F)));
}

class Playing : public ListeningFixture {
protected:
    /// A place that far from the camera.
    static btVector3 away(float distance) {
        const Camera& camera = *graphicsModule().camera;
        return {camera.getX() + distance, camera.getY(), 0.0F};
    }

    static SoundManager& sounds() { return soundManager(); }

    const Signal squeak = builtSound("sound/squeak1.wav"); // 48 steps long
};

} // namespace

TEST_F(Playing, ASoundIsAsLoudAsItIsFarAwayAndSilentBeyondHearing) {
    for (const float distance : {0.0F, 100.0F, 618.0F, 1001.0F}) {
        sounds().play("squeak1.wav", away(distance), one, 128, true);
        pass(second);
    }
    EXPECT_THAT(heard().find(squeak),
                ElementsAre(begins(0, 128), begins(second, 120), begins(2 * second, 64)));
    EXPECT_EQ(heard().peak(3 * second, 4 * second), 0.0F);

    SceneObject* source = addBox(100.0F, 0.0F, 10.0F, 10.0F, 0.0F);
    source->addAddition(parseScript("SOUNDSOURCE hum.wav"));
    std::vector<float> levels;
    for (const float x : {100.0F, 200.0F, 718.0F, 1101.0F}) {
        graphicsModule().camera->setX(x);
        pass(4); // what was mixed before the camera moved
        pass(humPeriod);
        levels.push_back(heard().level(now() - humPeriod, now()));
    }
    EXPECT_GT(levels[0], 0.05F);
    EXPECT_NEAR(levels[1] / levels[0], 120.0F / 128.0F, 0.01F);
    EXPECT_NEAR(levels[2] / levels[0], 64.0F / 128.0F, 0.01F);
    EXPECT_EQ(levels[3], 0.0F);
}

TEST_F(Playing, AnOwnersSoundRunsOnceUntilItEndsAndThenItsChannelIsFree) {
    for (int step = 0; step < 2 * second; ++step) {
        sounds().play("squeak1.wav", everywhere, one, 100, true); // as scripts do, in each step
        pass(1);
    }
    const auto again = heard().find(squeak);
    EXPECT_THAT(again, ElementsAre(begins(0, 100), testing::_, testing::_));
    EXPECT_GE(again[1].step, 47) << "not before the end of the first";
    EXPECT_LE(again[1].step, 53);
    pass(second);

    const int start = now();
    for (SoundOwner owner = 0; owner < Mixer::channelCount; ++owner) {
        sounds().play("hum.wav", everywhere, owner + one, 1, false);
    }
    {
        const CapturedErrors errors;
        sounds().playFlat("squeak1.wav", 100);
        EXPECT_EQ(errors.text(), "Unable to play sound: No free channels available\n");
    }
    pass(second);
    sounds().stop("hum.wav", two);
    sounds().playFlat("squeak1.wav", 100);
    pass(second);
    const auto all = heard().find(squeak);
    EXPECT_THAT(all, ElementsAre(testing::_, testing::_, testing::_, begins(start + second, 100)));
}

TEST_F(Playing, ALoopSoundsOnAndAOneShotEnds) {
    sounds().play("squeak1.wav", everywhere, one, 128, true);
    sounds().play("hum.wav", away(1500.0F), one, 128, false);
    pass(second);
    EXPECT_GT(heard().level(40, 46), 1e-4F);
    EXPECT_EQ(heard().peak(52, second), 0.0F);

    sounds().play("hum.wav", everywhere, one, 128, false);
    pass(4 * humPeriod);
    const int later = second + 2 * humPeriod;
    EXPECT_NEAR(heard().level(later, later + humPeriod),
                heard().level(second + 3, second + 3 + humPeriod), 0.002F);
    EXPECT_GT(heard().level(now() - 10, now()), 0.02F) << "at its seam";
    sounds().play("hum.wav", everywhere, one, 0, false);
    const int stopped = now();
    pass(10);
    EXPECT_EQ(heard().peak(stopped, now()), 0.0F);
}

TEST_F(Playing, WhatGoesAwayTakesItsSoundAlong) {
    SceneObject* fall = addBox(50.0F, 0.0F, 10.0F, 10.0F, 0.0F);
    fall->addAddition(parseScript("SOUNDSOURCE waterfall.wav"));
    SceneObject* other = addBox(-50.0F, 0.0F, 10.0F, 10.0F, 0.0F);
    other->addAddition(parseScript("SOUNDSOURCE waterfall.wav -V 64"));
    pass(second);
    const float both = heard().level(10, second);
    sceneManager().removeSceneObject(fall);
    pass(second);
    const float rest = heard().level(second, now());
    EXPECT_GT(rest, 0.02F);
    EXPECT_LT(rest, 0.6F * both);
    sceneManager().clearScene();
    const int gone = now();
    pass(second);
    EXPECT_EQ(heard().peak(gone, now()), 0.0F);
}

/// Three pieces of music, each a pure tone, so that each is heard by itself.
class MusicFades : public Playing {
protected:
    static constexpr float volume = 0.2F;
    static constexpr float tones[] = {441.0F, 630.0F, 882.0F};

    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        std::filesystem::remove("sound/click.wav");
        std::filesystem::remove("music/theme.ogg");
        for (std::size_t i = 0; i < 3; ++i) {
            Signal signal(44100);
            for (std::size_t frame = 0; frame < signal.size(); ++frame) {
                const double turns =
                    static_cast<double>(tones[i]) * static_cast<double>(frame) / 44100.0;
                signal[frame] =
                    volume * std::sin(twoPi * static_cast<float>(turns - std::floor(turns)));
            }
            save({{signal}}, "music/" + std::string(1, "abc"[i]) + ".ogg");
        }
    }

    /// Strength of a piece round a step, 1 when it plays without a fade.
    float strength(char piece, int step) const {
        return heard().tone(tones[piece - 'a'], step - 3, step + 3) / volume;
    }
};

TEST_F(MusicFades, APieceSinksInTwoSecondsAndThenTheNextRises) {
    sounds().playMusic("a.ogg");
    pass(4 * second);
    EXPECT_NEAR(strength('a', 30), 0.25F, 0.06F);
    EXPECT_NEAR(strength('a', 90), 0.75F, 0.06F);
    EXPECT_NEAR(strength('a', 3 * second), 1.0F, 0.02F);

    sounds().playMusic("b.ogg");
    const int asked = now();
    pass(5 * second);
    EXPECT_NEAR(strength('a', asked + 30), 0.75F, 0.06F);
    EXPECT_NEAR(strength('a', asked + 90), 0.25F, 0.06F);
    EXPECT_LT(strength('b', asked + 115), 0.02F) << "one after the other";
    EXPECT_LT(strength('a', asked + 130), 0.02F);
    EXPECT_NEAR(strength('b', asked + 2 * second + 60), 0.5F, 0.07F);
    EXPECT_NEAR(strength('b', asked + 270), 1.0F, 0.02F) << "round and round";
}

TEST_F(MusicFades, ThePieceThatWasAskedForLastIsTheOnlyOneThatFollows) {
    sounds().playMusic("a.ogg");
    pass(3 * second);
    sounds().playMusic("b.ogg");
    pass(second);
    sounds().playMusic("c.ogg");
    pass(5 * second);
    for (int step = 3 * second; step < now() - 6; step += 6) {
        EXPECT_LT(strength('b', step), 0.03F) << "in step " << step;
    }
    EXPECT_NEAR(strength('c', now() - 10), 1.0F, 0.02F);

    sounds().playMusic("");
    pass(second);
    EXPECT_NEAR(strength('c', now() - 4), 0.5F, 0.07F);
    pass(4 * second);
    EXPECT_EQ(heard().peak(now() - 2 * second, now()), 0.0F);
}

TEST_F(MusicFades, NothingComesAfterAFadeThatWasCalledOffWhileAnotherWaited) {
    sounds().playMusic("a.ogg");
    pass(second); // still rising
    sounds().playMusic("b.ogg");
    EXPECT_NEAR(strength('a', second - 4), 0.5F, 0.06F);
    pass(second / 2);
    sounds().playMusic("");
    pass(4 * second);
    EXPECT_EQ(heard().peak(now() - 2 * second, now()), 0.0F);
    for (int step = second; step < now() - 6; step += 6) {
        EXPECT_LT(strength('b', step), 0.03F) << "in step " << step;
    }
    sounds().playMusic("b.ogg");
    pass(3 * second);
    EXPECT_NEAR(strength('b', now() - 4), 1.0F, 0.02F);
}
