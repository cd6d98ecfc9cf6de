// How clips get into files and out of them.

#include "Clip.h"
#include "OggPages.h"

#include <sndfile.h>

#include <cmath>
#include <memory>

namespace {

struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using File = std::unique_ptr<SNDFILE, Close>;

File open(const std::string& path, int mode, SF_INFO& info) {
    File file(sf_open(path.c_str(), mode, &info));
    if (!file) {
        throw path + ": " + sf_strerror(nullptr);
    }
    return file;
}

void write(const Clip& clip, const std::string& path, int format) {
    SF_INFO info{};
    info.samplerate = samplesPerSecond;
    info.channels = static_cast<int>(clip.channels.size());
    info.format = format;
    File file = open(path, SFM_WRITE, info);
    double quality = 0.4; // of music; plain samples have none
    sf_command(file.get(), SFC_SET_VBR_ENCODING_QUALITY, &quality, sizeof quality);

    // In pieces, as the encoder puts what it is given on the stack.
    constexpr std::size_t piece = 4096;
    std::vector<short> samples;
    for (std::size_t start = 0; start < clip.frames(); start += piece) {
        samples.clear();
        for (std::size_t i = start; i < std::min(start + piece, clip.frames()); ++i) {
            for (const Signal& channel : clip.channels) {
                samples.push_back(static_cast<short>(std::lround(32767 * channel[i])));
            }
        }
        auto count = static_cast<sf_count_t>(samples.size());
        if (sf_write_short(file.get(), samples.data(), count) != count) {
            throw path + ": " + sf_strerror(file.get());
        }
    }
}

} // namespace

void save(const Clip& clip, const std::string& path) {
    if (path.ends_with(".ogg")) {
        write(clip, path, SF_FORMAT_OGG | SF_FORMAT_VORBIS);
        numberOggStream(path, 1);
    } else {
        write(clip, path, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    }
}

Clip load(const std::string& path) {
    SF_INFO info{};
    File file = open(path, SFM_READ, info);
    std::vector<float> samples(static_cast<std::size_t>(info.frames * info.channels));
    if (sf_readf_float(file.get(), samples.data(), info.frames) != info.frames) {
        throw path + ": " + sf_strerror(file.get());
    }
    auto channels = static_cast<std::size_t>(info.channels);
    Clip clip{std::vector<Signal>(channels, Signal(static_cast<std::size_t>(info.frames)))};
    for (std::size_t i = 0; i < samples.size(); ++i) {
        clip.channels[i % channels][i / channels] = samples[i];
    }
    return clip;
}
