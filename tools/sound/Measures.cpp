#include "Measures.h"

#include "Filter.h"

#include <algorithm>
#include <cmath>

namespace {

double squares(const Signal& signal, std::size_t from, std::size_t to) {
    double sum = 0;
    for (std::size_t i = from; i < to; ++i) {
        sum += static_cast<double>(signal[i]) * signal[i];
    }
    return sum;
}

float loudnessOf(const Signal& signal, std::size_t from, std::size_t to) {
    return static_cast<float>(
        std::sqrt(squares(signal, from, to) / static_cast<double>(to - from)));
}

// By third octaves, which is enough to tell a rumble from a hiss.
float centroidOf(const Signal& signal) {
    double weighted = 0, total = 1e-12;
    for (float hz = 31; hz < 16000; hz *= 1.26f) {
        Signal band = bandPass(signal, hz, 4.3f);
        double power = squares(band, 0, band.size());
        weighted += power * hz;
        total += power;
    }
    return static_cast<float>(weighted / total);
}

} // namespace

Measures measure(const Clip& clip) {
    Measures m;
    m.seconds = static_cast<float>(clip.frames()) / samplesPerSecond;
    m.quietest = 1;
    for (const Signal& signal : clip.channels) {
        if (signal.empty()) {
            return {};
        }
        double sum = 0;
        for (std::size_t i = 0; i < signal.size(); ++i) {
            sum += signal[i];
            m.largestStep =
                std::max(m.largestStep, i > 0 ? std::abs(signal[i] - signal[i - 1]) : 0);
        }
        m.peak = std::max(m.peak, peakOf(signal));
        m.loudness = std::max(m.loudness, loudnessOf(signal, 0, signal.size()));
        m.offset = std::max(m.offset,
                            static_cast<float>(std::abs(sum / static_cast<double>(signal.size()))));
        m.ends = std::max({m.ends, std::abs(signal.front()), std::abs(signal.back())});
        m.seam = std::max(m.seam, std::abs(signal.front() - signal.back()));
        constexpr std::size_t tenth = samplesPerSecond / 10;
        for (std::size_t i = 0; i + tenth <= signal.size(); i += tenth) {
            m.quietest = std::min(m.quietest, loudnessOf(signal, i, i + tenth));
        }
    }
    m.centroid = centroidOf(clip.channels.front());
    return m;
}
