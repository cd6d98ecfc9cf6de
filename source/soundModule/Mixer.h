#pragma once

#include <memory>
#include <string>

/// A loaded sound and a loaded piece of music, as the mixer that loaded them numbers them.
enum class SoundId : int { none = -1 };
enum class MusicId : int { none = -1 };

/// The few things that the sound manager asks of an audio library. Volumes are 0 to 128, fades
/// milliseconds. Destroying a mixer silences it, frees what it loaded and closes the device. All
/// calls come from the main thread.
class Mixer {
public:
    static constexpr int channelCount = 64;
    static constexpr int noChannel = -1;

    virtual ~Mixer() = default;

    /// Brings up the library's audio part; false if it fails, which need not be the end.
    virtual bool initialise() = 0;
    /// Opens the device; nothing else may be asked before. False if there is none.
    virtual bool open() = 0;
    /// Why the latest call failed, for people.
    virtual std::string error() = 0;

    /// Reads a file into memory; `none` if it cannot be played.
    virtual SoundId loadSound(const std::string& path) = 0;
    virtual MusicId loadMusic(const std::string& path) = 0;

    /// Starts a sound on the first free channel, once or for ever; `noChannel` if it cannot.
    virtual int play(SoundId sound, bool forEver) = 0;
    virtual void setVolume(int channel, int volume) = 0;
    virtual void halt(int channel) = 0;
    /// Returns at once; the channel still counts as playing until it is silent.
    virtual void fadeOut(int channel, int milliseconds) = 0;
    virtual bool isPlaying(int channel) = 0;

    /// Fades a piece in and repeats it for ever; no other may be playing. False if it cannot start.
    virtual bool fadeInMusic(MusicId music, int milliseconds) = 0;
    /// Returns at once; the music still counts as playing until it is silent.
    virtual void fadeOutMusic(int milliseconds) = 0;
    virtual bool isMusicPlaying() = 0;
    /// Whether music has ended since the latest call.
    virtual bool takeMusicFinished() = 0;
};

/// Puts a mixer in place for the next `SoundManager`; null for the audio library's.
void setMixer(std::unique_ptr<Mixer> mixer);
/// The mixer that was set, or else one that plays on the audio library.
std::unique_ptr<Mixer> takeMixer();
