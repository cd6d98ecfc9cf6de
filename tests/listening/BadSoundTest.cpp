#include "support/CapturedErrors.h"
#include "support/ListeningFixture.h"
#include "support/WavFile.h"

#include "Files.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"
#include "unit/PhysicsBodies.h"

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>

// Sounds that were made elsewhere, or are damaged, and a device that goes away.

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr float hz = 500.0F;
constexpr float amplitude = 0.25F;

/// A second of a pure tone.
std::string makeTone(unsigned rate, unsigned channels, unsigned bits) {
    std::string data;
    for (unsigned frame = 0; frame < rate; ++frame) {
        const float value =
            amplitude * std::sin(twoPi * hz * static_cast<float>(frame) / static_cast<float>(rate));
        for (unsigned channel = 0; channel < channels; ++channel) {
            if (bits == 8) {
                data += static_cast<char>(128 + std::lround(127.0F * value));
            } else {
                const auto sample = static_cast<unsigned>(std::lround(32767.0F * value));
                data += static_cast<char>(sample & 0xFFU);
                data += static_cast<char>(sample >> 8 & 0xFFU);
            }
        }
    }
    return makeWav(rate, channels, bits, data);
}

class BadSound : public ListeningFixture {
protected:
    void SetUp() override {
        const CapturedErrors errors;
        ListeningFixture::SetUp();
        complaints = errors.text();
    }

    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        fs::remove_all("sound");
        fs::remove_all("music");
        makeFiles();
    }
    virtual void makeFiles() = 0;

    std::string complaints; ///< Of the start.
};

class OddFormats : public BadSound {
protected:
    struct Format {
        unsigned rate, channels, bits;
    };
    static constexpr Format formats[] = {{44100, 2, 16}, {44100, 1, 16}, {44100, 2, 8},
                                         {48000, 2, 16}, {48000, 1, 8},  {22050, 1, 8},
                                         {8000, 2, 16},  {96000, 2, 16}};

    static std::string nameOf(const Format& format) {
        return std::to_string(format.rate) + '-' + std::to_string(format.channels) + '-' +
               std::to_string(format.bits) + ".wav";
    }

    void makeFiles() override {
        fs::create_directory("sound"); // and none for music
        for (const Format& format : formats) {
            directory.write("sound/" + nameOf(format),
                            makeTone(format.rate, format.channels, format.bits));
        }
    }
};

class DamagedMusic : public BadSound {
protected:
    void makeFiles() override {
        fs::create_directory("music");
        const std::string whole = readFile(TOLMERE_GAME_DIRECTORY "/music/cambience1.ogg");
        // Pages of the format begin with this mark; the first two hold what describes the stream.
        std::vector<std::size_t> pages;
        for (std::size_t at = 0; (at = whole.find("OggS", at)) != std::string::npos; ++at) {
            pages.push_back(at);
        }
        directory.write("music/cut.ogg", whole.substr(0, pages.at(12) + 100));
        directory.write("music/head.ogg", whole.substr(0, pages.at(2)));
        std::string hole = whole;
        std::fill(hole.begin() + static_cast<std::ptrdiff_t>(pages.at(6)),
                  hole.begin() + static_cast<std::ptrdiff_t>(pages.at(9)), '\0');
        directory.write("music/hole.ogg", hole);
        directory.write("music/shortest.wav", makeWav(44100, 2, 16, std::string(3, '\0')));
    }
};

class LostDevice : public ListeningFixture {};

} // namespace

TEST_F(OddFormats, SoundOfAnyRateWidthAndChannelsIsHeardAtItsPitchAndLength) {
    EXPECT_THAT(complaints, Not(HasSubstr("Unable")));
    for (const Format& format : formats) {
        SCOPED_TRACE(nameOf(format));
        const int start = now();
        soundManager().playFlat(nameOf(format), 128);
        pass(70);
        EXPECT_NEAR(heard().tone(hz, start + 5, start + 55), amplitude, 0.01F);
        EXPECT_NEAR(heard().level(start + 5, start + 55), amplitude / std::sqrt(2.0F), 0.01F)
            << "and nothing else is";
        EXPECT_GT(heard().peak(start + 56, start + 59), 0.1F);
        EXPECT_LT(heard().peak(start + 65, start + 70), 0.001F);
    }
}

TEST_F(DamagedMusic, IsPlayedAsFarAsItGoesAndKeepsNothingElseFromPlaying) {
    SoundManager& sounds = soundManager();
    const CapturedErrors errors;
    for (const char* name : {"cut.ogg", "hole.ogg"}) {
        SCOPED_TRACE(name);
        sounds.playMusic(name);
        pass(15 * 60); // some times round the one, over the hole of the other
        EXPECT_GT(heard().level(now() - 5 * 60, now()), 0.003F);
    }
    EXPECT_EQ(errors.text(), "");
    sounds.playMusic("head.ogg"); // cannot be started
    pass(3 * 60);
    EXPECT_THAT(errors.text(), HasSubstr("Unable to play sound: "));
    const std::string said = errors.text();
    sounds.playMusic("shortest.wav"); // ends at once, and begins again
    pass(60);
    EXPECT_EQ(heard().peak(now() - 30, now()), 0.0F);
    sounds.playMusic("cut.ogg");
    pass(5 * 60);
    EXPECT_GT(heard().level(now() - 60, now()), 0.003F);
    EXPECT_EQ(errors.text(), said);
}

TEST_F(LostDevice, LeavesTheGameRunningInSilence) {
    SceneObject* source = addBox(50.0F, 0.0F, 10.0F, 10.0F, 0.0F);
    source->addAddition(parseScript("SOUNDSOURCE waterfall.wav"));
    soundManager().playMusic("cambience1.ogg");
    pass(60);
    EXPECT_GT(heard().level(30, 60), 0.01F);

    listener->unplug();
    const CapturedErrors errors;
    const auto steps = physicsModule().stepCount;
    for (int round = 0; round < 200; ++round) {
        soundManager().playAt("thud.wav", {10.0F, 0.0F, 0.0F});
        soundManager().playMusic(round % 2 == 0 ? "creepy6.ogg" : "cambience1.ogg");
        pass(2);
        soundManager().stopAll("thud.wav");
    }
    sceneManager().clearScene();
    soundManager().playMusic("");
    pass(60);
    EXPECT_EQ(physicsModule().stepCount, steps + 460);
    EXPECT_EQ(errors.text(), "");
}
