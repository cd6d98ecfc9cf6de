#include "SdlMixer.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <atomic>
#include <cstddef>
#include <vector>

namespace {

constexpr int samplesPerSecond = 44100;
constexpr int speakers = 2;
constexpr int bufferSamples = 1024; // 23 ms; what a sound is late at most

/// Raised on the audio thread, which must not call the mixer; the main thread asks for it.
std::atomic<bool> musicFinished = false;

template <auto release>
struct Release {
    template <class T>
    void operator()(T* resource) const {
        release(resource);
    }
};
using Chunk = std::unique_ptr<Mix_Chunk, Release<Mix_FreeChunk>>;
using Music = std::unique_ptr<Mix_Music, Release<Mix_FreeMusic>>;

/// The library says what is wrong, but not with which file.
void nameInError(const std::string& path) {
    const std::string reason = SDL_GetError();
    SDL_SetError("%s: %s", path.c_str(), reason.c_str());
}

/// Bytes of one sample of all speakers, as the device takes them.
unsigned bytesOfFrame() {
    int frequency = 0;
    Uint16 format = 0;
    int channels = 0;
    Mix_QuerySpec(&frequency, &format, &channels);
    return SDL_AUDIO_BITSIZE(format) / 8U * static_cast<unsigned>(channels);
}

class SdlMixer : public Mixer {
public:
    SdlMixer() = default;
    ~SdlMixer() override;
    SdlMixer(const SdlMixer&) = delete;
    SdlMixer& operator=(const SdlMixer&) = delete;

    bool initialise() override;
    bool open() override;
    std::string error() override { return SDL_GetError(); }

    SoundId loadSound(const std::string& path) override;
    MusicId loadMusic(const std::string& path) override;

    int play(SoundId sound, bool forEver) override;
    void setVolume(int channel, int volume) override { Mix_Volume(channel, volume); }
    void halt(int channel) override { Mix_HaltChannel(channel); }
    void fadeOut(int channel, int milliseconds) override {
        Mix_FadeOutChannel(channel, milliseconds);
    }
    bool isPlaying(int channel) override { return Mix_Playing(channel) != 0; }

    bool fadeInMusic(MusicId music, int milliseconds) override;
    void fadeOutMusic(int milliseconds) override { Mix_FadeOutMusic(milliseconds); }
    bool isMusicPlaying() override { return Mix_PlayingMusic() != 0; }
    bool takeMusicFinished() override { return musicFinished.exchange(false); }

private:
    bool isOpen = false;
    unsigned frameBytes = 0;
    std::vector<Chunk> sounds; // a SoundId is an index
    std::vector<Music> pieces; // a MusicId is an index
};

// SDL would else take the signals that end a program for events, which nobody here asks it for.
bool SdlMixer::initialise() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    return SDL_Init(SDL_INIT_AUDIO) == 0;
}

bool SdlMixer::open() {
    isOpen = Mix_OpenAudio(samplesPerSecond, AUDIO_S16LSB, speakers, bufferSamples) == 0;
    if (isOpen) {
        Mix_AllocateChannels(channelCount);
        frameBytes = bytesOfFrame();
        musicFinished = false;
        Mix_HookMusicFinished([] { musicFinished = true; });
    }
    return isOpen;
}

// Freeing music that fades out would wait for the end of the fade.
SdlMixer::~SdlMixer() {
    if (!isOpen) {
        return;
    }
    Mix_HookMusicFinished(nullptr);
    Mix_HaltMusic();
    pieces.clear();
    sounds.clear();
    Mix_CloseAudio();
}

SoundId SdlMixer::loadSound(const std::string& path) {
    Chunk chunk(Mix_LoadWAV(path.c_str()));
    if (chunk && chunk->alen < frameBytes) {
        SDL_SetError("no samples"); // else it would be refused anew whenever it is to be played
        chunk.reset();
    }
    if (!chunk) {
        nameInError(path);
        return SoundId::none;
    }
    sounds.push_back(std::move(chunk));
    return SoundId{static_cast<int>(sounds.size()) - 1};
}

MusicId SdlMixer::loadMusic(const std::string& path) {
    Music music(Mix_LoadMUS(path.c_str()));
    if (music && Mix_GetMusicType(music.get()) == MUS_MID) {
        // Without a note in it, it would keep the audio thread, and then the game, for ever; and
        // the game brings no instruments.
        SDL_SetError("MIDI is not played");
        music.reset();
    }
    if (!music) {
        nameInError(path);
        return MusicId::none;
    }
    pieces.push_back(std::move(music));
    return MusicId{static_cast<int>(pieces.size()) - 1};
}

int SdlMixer::play(SoundId sound, bool forEver) {
    Mix_Chunk* chunk = sounds[static_cast<std::size_t>(sound)].get();
    return Mix_PlayChannelTimed(-1, chunk, forEver ? -1 : 0, -1);
}

bool SdlMixer::fadeInMusic(MusicId music, int milliseconds) {
    return Mix_FadeInMusic(pieces[static_cast<std::size_t>(music)].get(), -1, milliseconds) == 0;
}

} // namespace

std::unique_ptr<Mixer> makeSdlMixer() {
    return std::make_unique<SdlMixer>();
}
