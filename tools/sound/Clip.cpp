#include "Clip.h"

#include "Filter.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

float eased(float x) {
    x = std::clamp(x, 0.0f, 1.0f);
    return x * x * (3 - 2 * x);
}

// Short ramps at both ends; what offset is left is taken out in the same shape, so that neither an
// offset nor a click remains.
void fadeEnds(Signal& signal, float seconds) {
    float in = 0.0015f, out = std::min(0.25f, 0.2f * seconds);
    Signal window(signal.size(), 1.0f);
    shape(window, [&](float t) { return eased(t / in) * eased((seconds - t) / out); });
    double sum = 0, weight = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] *= window[i];
        sum += signal[i];
        weight += window[i];
    }
    auto offset = static_cast<float>(sum / weight);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] -= offset * window[i];
    }
}

// Rounds off what stands out: a lone spike would else decide the level of the whole sound, and
// leave the rest of it too quiet beside others of the same peak.
void press(Signal& signal) {
    constexpr std::size_t tenth = samplesPerSecond / 10;
    double loudest = 1e-12;
    for (std::size_t start = 0; start < signal.size(); start += tenth / 2) {
        double power = 0;
        for (std::size_t i = start; i < std::min(start + tenth, signal.size()); ++i) {
            power += static_cast<double>(signal[i]) * signal[i];
        }
        loudest = std::max(loudest, power / tenth);
    }
    constexpr float headroom = 3; // above the loudest tenth of a second
    float ceiling = headroom * static_cast<float>(std::sqrt(loudest));
    for (float& sample : signal) {
        sample = ceiling * std::tanh(sample / ceiling);
    }
}

// The end dies away while the start comes up. How alike the two are decides whether their
// strengths or their powers add up, so that the loudness holds for tones as for noise.
void crossfade(Signal& signal, std::size_t frames) {
    std::size_t overlap = signal.size() - frames;
    double both = 0, start = 1e-12, end = 1e-12;
    for (std::size_t i = 0; i < overlap; ++i) {
        both += static_cast<double>(signal[i]) * signal[frames + i];
        start += static_cast<double>(signal[i]) * signal[i];
        end += static_cast<double>(signal[frames + i]) * signal[frames + i];
    }
    auto alike = static_cast<float>(both / std::sqrt(start * end));
    for (std::size_t i = 0; i < overlap; ++i) {
        float in = eased(static_cast<float>(i) / static_cast<float>(overlap)), out = 1 - in;
        float norm = std::sqrt(in * in + out * out + 2 * in * out * std::max(alike, 0.0f));
        signal[i] = (in * signal[i] + out * signal[frames + i]) / norm;
    }
    signal.resize(frames);
}

void wrap(Signal& signal, std::size_t frames) {
    for (std::size_t i = frames; i < signal.size(); ++i) {
        signal[i % frames] += signal[i];
    }
    signal.resize(frames);
}

// A loop may start anywhere: where it is near zero, starting it does not click.
void startQuietly(Clip& clip) {
    auto loudness = [&](std::size_t i) {
        float sum = 0;
        for (const Signal& channel : clip.channels) {
            sum += std::abs(channel[i]);
        }
        return sum;
    };
    std::size_t quietest = 0;
    auto searched = std::min<std::size_t>(clip.frames(), samplesPerSecond / 4);
    for (std::size_t i = 1; i < searched; ++i) {
        quietest = loudness(i) < loudness(quietest) ? i : quietest;
    }
    for (Signal& channel : clip.channels) {
        std::rotate(channel.begin(), channel.begin() + static_cast<std::ptrdiff_t>(quietest),
                    channel.end());
    }
}

void removeOffset(Signal& signal) {
    double sum = std::accumulate(signal.begin(), signal.end(), 0.0);
    auto mean =
        static_cast<float>(sum / static_cast<double>(std::max<std::size_t>(signal.size(), 1)));
    for (float& sample : signal) {
        sample -= mean;
    }
}

} // namespace

float overlapOf(float seconds, Ending ending) {
    return ending == Ending::loop ? std::min(1.0f, seconds / 4) : 0;
}

void finish(Clip& clip, float seconds, Ending ending, float peak) {
    auto frames = static_cast<std::size_t>(framesOf(seconds));
    auto overlap = static_cast<std::size_t>(framesOf(overlapOf(seconds, ending)));
    float loudest = 0;
    for (Signal& signal : clip.channels) {
        if (ending == Ending::wrap) {
            signal.resize(signal.size() + samplesPerSecond / 4); // for the filter to ring out
        }
        constexpr float inaudible = 22;
        signal = highPass(std::move(signal), inaudible);
        if (ending == Ending::wrap) {
            signal.resize(std::max(signal.size(), frames));
            wrap(signal, frames);
        } else {
            signal.resize(frames + overlap);
        }
        if (ending == Ending::loop) {
            crossfade(signal, frames);
        }
        press(signal);
        removeOffset(signal);
        if (ending == Ending::once) {
            fadeEnds(signal, seconds);
        }
        loudest = std::max(loudest, peakOf(signal));
    }
    if (ending != Ending::once) {
        startQuietly(clip);
    }
    for (Signal& signal : clip.channels) {
        shape(signal,
              [&](float) { return loudest > 0 ? std::pow(10.0f, peak / 20) / loudest : 0; });
    }
}
