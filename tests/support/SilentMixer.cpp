#include "SilentMixer.h"

#include <algorithm>
#include <utility>

namespace {

template <class Id>
Id number(std::vector<std::string>& names, const std::string& path) {
    names.push_back(path.substr(path.rfind('/') + 1));
    return Id{static_cast<int>(names.size()) - 1};
}

} // namespace

std::string SilentMixer::running() const {
    std::string text;
    for (const Channel& channel : channels) {
        if (channel.playing) {
            text += text.empty() ? "" : " ";
            text += sounds[static_cast<std::size_t>(channel.sound)] + ' ' +
                    std::to_string(channel.volume) + (channel.forEver ? " for ever" : "");
        }
    }
    return text;
}

std::string SilentMixer::takeRunning(std::initializer_list<const char*> families) {
    std::string text = running();
    for (const std::string family : families) {
        for (auto at = text.find(family); at != std::string::npos; at = text.find(family, at + 1)) {
            text[at + family.size()] = 'N';
        }
    }
    for (int channel = 0; channel < channelCount; ++channel) {
        endSound(channel);
    }
    return text;
}

void SilentMixer::endMusic() {
    music.clear();
    fadingOut = false;
    finished = true;
}

SoundId SilentMixer::loadSound(const std::string& path) {
    return number<SoundId>(sounds, path);
}

MusicId SilentMixer::loadMusic(const std::string& path) {
    return number<MusicId>(pieces, path);
}

int SilentMixer::play(SoundId sound, bool forEver) {
    const auto free = std::find_if(channels.begin(), channels.end(),
                                   [](const Channel& channel) { return !channel.playing; });
    if (free == channels.end()) {
        return noChannel;
    }
    *free = {sound, free->volume, forEver, true};
    return static_cast<int>(free - channels.begin());
}

void SilentMixer::setVolume(int channel, int volume) {
    channels[static_cast<std::size_t>(channel)].volume = volume;
}

bool SilentMixer::isPlaying(int channel) {
    return channels[static_cast<std::size_t>(channel)].playing;
}

bool SilentMixer::fadeInMusic(MusicId piece, int /*milliseconds*/) {
    music = pieces[static_cast<std::size_t>(piece)];
    ++musicStarts;
    return true;
}

void SilentMixer::fadeOutMusic(int /*milliseconds*/) {
    fadingOut = isMusicPlaying();
}

bool SilentMixer::takeMusicFinished() {
    return std::exchange(finished, false);
}
