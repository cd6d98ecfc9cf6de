#pragma once

#include "soundModule/Mixer.h"

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

/// A mixer without a device: takes every file, whatever is in it, and keeps what plays where. No
/// sound and no fade ends but by the test.
class SilentMixer : public Mixer {
public:
    // What a test looks at.
    struct Channel {
        SoundId sound = SoundId::none;
        int volume = 0;
        bool forEver = false;
        bool playing = false;
    };
    std::array<Channel, channelCount> channels{};
    std::string music; ///< File name of the piece that plays or fades; empty for none.
    bool fadingOut = false;
    int musicStarts = 0;

    /// What runs, in the order of channels, as "a.wav 128 b.wav 40 for ever".
    std::string running() const;
    /// The same, and then all of it ends. Of sounds that are chosen by chance, which begin with one
    /// of the words, the digit behind it becomes N.
    std::string takeRunning(std::initializer_list<const char*> families = {});

    // What happens by itself elsewhere.
    void endSound(int channel) { channels[static_cast<std::size_t>(channel)].playing = false; }
    /// The end of a fade, or of music that cannot be repeated.
    void endMusic();

    bool initialise() override { return true; }
    bool open() override { return true; }
    std::string error() override { return "silent mixer"; }
    SoundId loadSound(const std::string& path) override;
    MusicId loadMusic(const std::string& path) override;
    int play(SoundId sound, bool forEver) override;
    void setVolume(int channel, int volume) override;
    void halt(int channel) override { endSound(channel); }
    void fadeOut(int channel, int /*milliseconds*/) override { endSound(channel); }
    bool isPlaying(int channel) override;
    bool fadeInMusic(MusicId piece, int milliseconds) override;
    void fadeOutMusic(int milliseconds) override;
    bool isMusicPlaying() override { return !music.empty(); }
    bool takeMusicFinished() override;

private:
    std::vector<std::string> sounds; // file names, by id
    std::vector<std::string> pieces;
    bool finished = false;
};
