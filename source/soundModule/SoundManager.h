#pragma once

#include "Mixer.h"
#include "Service.h"

#include <LinearMath/btVector3.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

/// Who a tracked sound belongs to: any word that identifies the caller, compared and never
/// followed.
using SoundOwner = std::uintptr_t;

/// The one place that talks to the mixer. Volumes are 0 to 128, positions world units; a position
/// of exactly (0, 0, 0) is not positional. Sounds and music go by their file names, "heart.wav";
/// a name that nothing was loaded for is silently nothing.
class SoundManager {
    ServiceSlot<SoundManager> slot{this};

public:
    /// Opens the mixer (see `setMixer`) and loads all of `sound/` and `music/`. A file that cannot
    /// be played is reported and left out; without an audio device the process ends.
    SoundManager();
    SoundManager(const SoundManager&) = delete;
    SoundManager& operator=(const SoundManager&) = delete;

    /// Volume by distance from the camera, 0 to 128.
    std::uint8_t distanceVolume(const btVector3& position) const;
    /// A sound that belongs to an owner; asking again while it runs changes its volume, and a
    /// volume of 0 ends it.
    void play(const std::string& name, const btVector3& position, SoundOwner owner,
              std::uint8_t volume, bool once);
    /// A one-shot without owner and distance.
    void playFlat(const std::string& name, std::uint8_t volume);
    /// A one-shot by distance volume, silent at 0.
    void playAt(const std::string& name, const btVector3& position);
    void stop(const std::string& name, SoundOwner owner);
    void stopAll(const std::string& name);
    /// Stops every channel of the owner.
    void stopOwner(SoundOwner owner);
    /// Every sound dies away over four seconds; the music goes on.
    void fadeOutSounds();
    /// Fades to another piece; an empty name fades out.
    void playMusic(const std::string& name);
    void addFear(float periodDelta, int levelDelta);
    /// Once a step, after the scene objects.
    void update();
    /// Once a tick of the loop, also while no step runs: starts the wanted music when the former
    /// one has faded out.
    void tick();

    int heartCount = 0;        ///< Requests of the heartbeat in this step.
    float heartVolume = 0.0F;  ///< 0 to 128.
    int fearLevel = 0;         ///< Volume of the next breath, 0 to 40.
    float fearPeriod = 300.0F; ///< Range of the pause between breaths, steps, 60 to 300.
    std::string currentMusic;  ///< What plays or is about to play.

private:
    void openMixer();
    void loadSounds();
    void loadMusic();
    void report(const char* message) const;
    SoundId findSound(const std::string& name) const;
    bool carries(int channel, SoundId sound) const;
    int findChannel(SoundOwner owner, SoundId sound, int first) const;
    void start(SoundId sound, std::uint8_t volume, bool forEver, SoundOwner owner);
    void halt(int channel);
    void beatHeart();
    void breathe();

    std::unique_ptr<Mixer> mixer; // never null
    std::unordered_map<std::string, SoundId> soundsByName;
    std::unordered_map<std::string, MusicId> musicByName;
    // What was last put on each channel, and whose it is. Both mean something only while the
    // channel plays. Kept here, the owners for themselves, because sounds are asked for many times
    // a step.
    std::array<SoundOwner, Mixer::channelCount> channelOwner{};
    std::array<SoundId, Mixer::channelCount> channelSound{};
    int fearCountdown = 0; // steps to the next breath
    /// Since a sound found no channel: until one is halted or the step ends, no other is tried,
    /// so that a hundred rolling stones are one line of complaint a step and not a hundred.
    bool channelsTaken = false;
};

SoundManager& soundManager();
