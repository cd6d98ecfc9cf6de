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

/// Two pieces of music, each a pure tone, so that each is heard by itself.
class MusicFades : public Playing {
protected:
    static constexpr float volume = 0.2F;
    static constexpr float tones[] = {441.0F, 630.0F};

    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        std::filesystem::remove("sound/click.wav");
        std::filesystem::remove("music/theme.ogg");
        for (std::size_t i = 0; i < 2; ++i) {
            Signal signal(44100);
            for (std::size_t frame = 0; frame < signal.size(); ++frame) {
                const double turns =
                    static_cast<double>(tones[i]) * static_cast<double>(frame) / 44100.0;
                signal[frame] =
                    volume * std::sin(twoPi * static_cast<float>(turns - std::floor(turns)));
            }
            save({{signal}}, "music/" + std::string(1, "ab"[i]) + ".ogg");
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
