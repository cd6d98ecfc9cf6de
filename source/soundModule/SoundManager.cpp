#include "SoundManager.h"

#include "Files.h"
#include "ProcessValues.h"
#include "Random.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr float fullVolume = 128.0F;
constexpr float hearingLimit = 2000.0F;     // of the bent distance; 1000 world units
constexpr float distanceBend = 0.001F;      // share of the squared distance on top
constexpr float shortestFearPeriod = 60.0F; // steps
constexpr float calmFearPeriod = 300.0F;    // steps; no breath is heard
constexpr int loudestFear = 40;
constexpr int shortestPause = 30; // steps between two breaths
constexpr int longestPause = 300; // steps between two breaths
constexpr int breathSounds = 11;
constexpr int musicFade = 2000; // milliseconds
constexpr int soundFade = 4000; // milliseconds; when a whole scene goes
constexpr auto bodyOwner = static_cast<SoundOwner>(-1);
constexpr SoundOwner noOwner = 0;

const btVector3 everywhere(0.0F, 0.0F, 0.0F);

std::uint8_t mixed(std::uint8_t volume, std::uint8_t byDistance) {
    return static_cast<std::uint8_t>(static_cast<float>(volume) / fullVolume *
                                     static_cast<float>(byDistance));
}

} // namespace

SoundManager& soundManager() {
    return service<SoundManager>();
}

SoundManager::SoundManager() : mixer(takeMixer()) {
    openMixer();
    loadSounds();
    loadMusic();
}

void SoundManager::openMixer() {
    if (!mixer->initialise()) {
        report("Unable to initialize SDL");
    }
    if (!mixer->open()) {
        report("Unable to initialize audio");
        std::exit(1);
    }
}

void SoundManager::loadSounds() {
    for (const std::string& name : listFiles(dataPrefix + "sound/*.wav")) {
        const SoundId sound = mixer->loadSound(dataPrefix + "sound/" + name);
        if (sound == SoundId::none) {
            report("Unable to load WAV file");
        } else {
            soundsByName.emplace(name, sound);
        }
    }
}

void SoundManager::loadMusic() {
    for (const std::string& name : listFiles(dataPrefix + "music/*.???")) {
        const MusicId music = mixer->loadMusic(dataPrefix + "music/" + name);
        if (music == MusicId::none) {
            report("Unable to load WAV file");
        } else {
            musicByName.emplace(name, music);
        }
    }
}

void SoundManager::report(const char* message) const {
    std::fprintf(stderr, "%s: %s\n", message, mixer->error().c_str());
}

std::uint8_t SoundManager::distanceVolume(const btVector3& position) const {
    if (position.x() == 0.0F && position.y() == 0.0F && position.z() == 0.0F) {
        return static_cast<std::uint8_t>(fullVolume);
    }
    const Camera& camera = *graphicsModule().camera;
    const float x = camera.getX() - position.x();
    const float y = camera.getY() - position.y();
    const float distance = std::sqrt(x * x + y * y + position.z() * position.z());
    const float bent = distance + distance * distance * distanceBend;
    if (!(bent <= hearingLimit)) {
        return 0;
    }
    return static_cast<std::uint8_t>(fullVolume - fullVolume * (bent / hearingLimit));
}

void SoundManager::play(const std::string& name, const btVector3& position, SoundOwner owner,
                        std::uint8_t volume, bool once) {
    if (channelsTaken &&
        std::find(channelOwner.begin(), channelOwner.end(), owner) == channelOwner.end()) {
        return; // a landslide asks hundreds of times a step
    }
    const SoundId sound = findSound(name);
    if (sound == SoundId::none) {
        return;
    }
    const int running = findChannel(owner, sound, 0);
    if (running == Mixer::noChannel && channelsTaken) {
        return;
    }
    const std::uint8_t heard = mixed(volume, distanceVolume(position));
    if (running != Mixer::noChannel) {
        heard != 0 ? mixer->setVolume(running, heard) : halt(running);
    } else if (heard != 0) {
        start(sound, heard, !once, owner);
    }
}

void SoundManager::playFlat(const std::string& name, std::uint8_t volume) {
    const SoundId sound = findSound(name);
    if (sound != SoundId::none) {
        start(sound, volume, false, noOwner);
    }
}

void SoundManager::playAt(const std::string& name, const btVector3& position) {
    const std::uint8_t volume = distanceVolume(position);
    if (volume != 0) {
        playFlat(name, volume);
    }
}

void SoundManager::stop(const std::string& name, SoundOwner owner) {
    const SoundId sound = findSound(name);
    for (int channel = findChannel(owner, sound, 0); channel != Mixer::noChannel;
         channel = findChannel(owner, sound, channel + 1)) {
        halt(channel);
    }
}

void SoundManager::stopAll(const std::string& name) {
    const SoundId sound = findSound(name);
    for (int channel = 0; channel < Mixer::channelCount; ++channel) {
        if (carries(channel, sound)) {
            halt(channel);
        }
    }
}

void SoundManager::stopOwner(SoundOwner owner) {
    for (int channel = 0; channel < Mixer::channelCount; ++channel) {
        const auto i = static_cast<std::size_t>(channel);
        if (channelOwner[i] == owner && carries(channel, channelSound[i])) {
            halt(channel);
        }
    }
}

void SoundManager::fadeOutSounds() {
    for (int channel = 0; channel < Mixer::channelCount; ++channel) {
        mixer->fadeOut(channel, soundFade);
    }
}

void SoundManager::playMusic(const std::string& name) {
    if (name == currentMusic && mixer->isMusicPlaying()) {
        return;
    }
    if (name.empty()) {
        currentMusic.clear();
        mixer->fadeOutMusic(musicFade);
        return;
    }
    const auto found = musicByName.find(name);
    if (found == musicByName.end()) {
        return;
    }
    currentMusic = name;
    if (mixer->isMusicPlaying()) {
        mixer->fadeOutMusic(musicFade); // its end starts the new one, see `tick`
    } else if (!mixer->fadeInMusic(found->second, musicFade)) {
        report("Unable to play sound");
    }
}

void SoundManager::addFear(float periodDelta, int levelDelta) {
    fearPeriod = std::clamp(fearPeriod + periodDelta, shortestFearPeriod, calmFearPeriod);
    fearLevel = std::clamp(fearLevel + levelDelta, 0, loudestFear);
}

void SoundManager::update() {
    channelsTaken = false;
    beatHeart();
    if (fearPeriod < calmFearPeriod && --fearCountdown <= 0) {
        breathe();
    }
}

void SoundManager::tick() {
    channelsTaken = false;
    if (mixer->takeMusicFinished()) {
        playMusic(currentMusic);
    }
}

SoundId SoundManager::findSound(const std::string& name) const {
    const auto found = soundsByName.find(name);
    return found == soundsByName.end() ? SoundId::none : found->second;
}

/// Whether the sound is running on the channel; never for an unknown sound.
bool SoundManager::carries(int channel, SoundId sound) const {
    return sound != SoundId::none && channelSound[static_cast<std::size_t>(channel)] == sound &&
           mixer->isPlaying(channel);
}

/// The next channel, from `first` on, that runs the sound for the owner, or `noChannel`.
int SoundManager::findChannel(SoundOwner owner, SoundId sound, int first) const {
    auto at = channelOwner.begin() + first;
    while ((at = std::find(at, channelOwner.end(), owner)) != channelOwner.end()) {
        const auto channel = static_cast<int>(at - channelOwner.begin());
        if (carries(channel, sound)) {
            return channel;
        }
        ++at;
    }
    return Mixer::noChannel;
}

void SoundManager::start(SoundId sound, std::uint8_t volume, bool forEver, SoundOwner owner) {
    if (channelsTaken) {
        return;
    }
    const int channel = mixer->play(sound, forEver);
    channelsTaken = channel == Mixer::noChannel;
    if (channelsTaken) {
        report("Unable to play sound");
        return;
    }
    mixer->setVolume(channel, volume);
    channelOwner[static_cast<std::size_t>(channel)] = owner;
    channelSound[static_cast<std::size_t>(channel)] = sound;
}

void SoundManager::halt(int channel) {
    mixer->halt(channel);
    channelOwner[static_cast<std::size_t>(channel)] = noOwner;
    channelSound[static_cast<std::size_t>(channel)] = SoundId::none;
    channelsTaken = false;
}

void SoundManager::beatHeart() {
    if (heartCount == 0) {
        stopAll("heart.wav");
    } else if (heartVolume != 0.0F) {
        const float volume = std::clamp(heartVolume, 0.0F, fullVolume);
        play("heart.wav", everywhere, bodyOwner, static_cast<std::uint8_t>(volume), false);
    }
}

/// Draws the pause up to the next breath first, then which of the breaths is heard now.
void SoundManager::breathe() {
    const int range = static_cast<int>(std::max(fearPeriod, shortestFearPeriod));
    fearCountdown = std::clamp(drawRandom() % range + shortestPause, shortestPause, longestPause);
    const std::string name = "breath" + std::to_string(drawRandom() % breathSounds) + ".wav";
    play(name, everywhere, bodyOwner, static_cast<std::uint8_t>(fearLevel), true);
}
