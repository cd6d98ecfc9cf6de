#include "soundModule/SdlMixer.h"

#include "support/TempDirectory.h"
#include "support/WavFile.h"

#include "ProcessValues.h"
#include "soundModule/SoundManager.h"

#include <SDL.h>
#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// A quiet WAV file of that many samples.
std::string makeQuiet(unsigned channels, unsigned samples) {
    return makeWav(44100, channels, 16, std::string(std::size_t{samples} * channels * 2, '\0'));
}

/// The audio library on a device that swallows all, in real time.
class SdlMixerTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        dataPrefix = directory.path() + "/";
    }
    void TearDown() override {
        delete existingService<SoundManager>();
        SDL_Quit(); // the next start chooses the driver anew
        dataPrefix.clear();
    }

    void makeFolders() const {
        std::filesystem::create_directory(directory.file("sound"));
        std::filesystem::create_directory(directory.file("music"));
    }

    /// What the manager says while it loads.
    static std::string complaintsOfLoading() {
        testing::internal::CaptureStderr();
        soundManager();
        return testing::internal::GetCapturedStderr();
    }

    TempDirectory directory;
};

} // namespace

TEST_F(SdlMixerTest, FilesThatCannotBePlayedAreNamedAndSkipped) {
    makeFolders();
    const std::string good = makeQuiet(2, 500);
    directory.write("sound/good.wav", good);
    directory.write("sound/cut.wav", good.substr(0, 600));
    directory.write("sound/empty.wav", "");
    directory.write("sound/silent.wav", makeQuiet(2, 0));
    directory.write("sound/short.wav", good.substr(0, 30));
    directory.write("sound/text.wav", "not a sound at all");
    directory.write("sound/lying.wav", good.substr(0, 40) + "\xFF\xFF\xFF\xFF" + good.substr(44));
    directory.write("sound/noChannels.wav", makeQuiet(0, 4));
    directory.write("music/empty.ogg", "");
    directory.write("music/text.ogg", "OggS but no more");
    directory.write("music/good.wav", good);
    directory.write("music/empty.mid", std::string("MThd\0\0\0\6\0\0\0\0\0\0", 14));
    std::filesystem::create_directory(directory.file("sound/folder.wav"));

    EXPECT_THAT(complaintsOfLoading(),
                AllOf(HasSubstr("Unable to load WAV file: "), HasSubstr("sound/empty.wav: "),
                      HasSubstr("silent.wav: no samples\n"), HasSubstr("short.wav: "),
                      HasSubstr("text.wav: "), HasSubstr("noChannels.wav: "),
                      HasSubstr("folder.wav: "), HasSubstr("music/empty.ogg: "),
                      HasSubstr("text.ogg: "), HasSubstr("empty.mid: "), Not(HasSubstr("good"))));
    testing::internal::CaptureStderr();
    for (const char* name : {"good", "cut", "empty", "silent", "lying"}) {
        soundManager().playFlat(std::string(name) + ".wav", 128);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SdlMixerTest, WithoutFoldersTheGameIsMerelySilent) {
    EXPECT_EQ(complaintsOfLoading(), "Error opening directory\nError opening directory\n");
    soundManager().playFlat("click.wav", 128);
    soundManager().playMusic("theme.ogg");
    soundManager().stopAll("roll.wav");
}

TEST_F(SdlMixerTest, ASignalToEndStillEndsTheProcess) {
    for (const int signal : {SIGINT, SIGTERM}) {
        EXPECT_EXIT(
            {
                soundManager();
                std::raise(signal);
                std::_Exit(0);
            },
            testing::KilledBySignal(signal), "");
    }
}

TEST_F(SdlMixerTest, WithoutAnAudioDeviceTheProcessEnds) {
    EXPECT_EXIT(
        {
            setenv("SDL_AUDIODRIVER", "nothing of that name", 1);
            soundManager();
        },
        testing::ExitedWithCode(1), "Unable to initialize audio: ");
}
