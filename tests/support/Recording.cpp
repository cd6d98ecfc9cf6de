#include "Recording.h"

#include "tools/sound/Clip.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace {

constexpr float fullScale = 32768.0F;
constexpr float fullVolume = 128.0F;
constexpr float sure = 0.3F;       // a sound that is not there stays below 0.2, whatever else is
constexpr double inaudible = 1e-5; // of energy: rounding to 16 bits
constexpr std::size_t longestPattern = 2 * 44100;

/// Difference of neighbours: takes the weight from the low tones that music and thuds share.
Signal sharpened(std::span<const float> signal) {
    Signal steps(signal.size());
    std::adjacent_difference(signal.begin(), signal.end(), steps.begin());
    return steps;
}

/// Means of neighbours: what is above a few hundred hertz goes.
Signal dulled(std::span<const float> signal) {
    constexpr std::size_t width = 64;
    Signal means(signal.size());
    double sum = 0.0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        sum += signal[i];
        if (i >= width) {
            sum -= signal[i - width];
        }
        means[i] = static_cast<float>(sum / width);
    }
    return means;
}

std::span<const float> beginningOf(const Signal& sound) {
    return {sound.data(), std::min(sound.size(), longestPattern)};
}

double product(const float* a, std::span<const float> b) {
    double sum = 0.0;
    for (std::size_t i = 0; i < b.size(); ++i) {
        sum += static_cast<double>(a[i] * b[i]);
    }
    return sum;
}

/// Matches a pattern with a signal at some places, which are in order.
class Search {
public:
    Search(Signal in, Signal pattern, const std::vector<std::size_t>& places)
        : rest(std::move(in)),
          wanted(std::move(pattern)) {
        rest.resize(rest.size() + wanted.size()); // the last sound may be cut
        wantedEnergy = product(wanted.data(), wanted);
        for (const std::size_t place : places) {
            matches.push_back(match(place));
        }
    }

    struct Match {
        std::size_t at = 0; // frames
        double gain = 0.0;
        double likeness = 0.0;
    };

    Match best() const {
        const auto found =
            std::max_element(matches.begin(), matches.end(), [](const Match& a, const Match& b) {
                return a.likeness < b.likeness;
            });
        return found == matches.end() ? Match{} : *found;
    }

    /// Takes the found sound out of the signal, and with it all that looked like it near by.
    void remove(const Match& found) {
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            rest[found.at + i] -= static_cast<float>(found.gain) * wanted[i];
        }
        for (Match& other : matches) {
            if (other.at == found.at) {
                other.likeness = 0.0; // begins there once
            } else if (other.at < found.at + wanted.size() && found.at < other.at + wanted.size()) {
                other = match(other.at);
            }
        }
    }

private:
    Match match(std::size_t at) const {
        const double energy = product(&rest[at], {&rest[at], wanted.size()});
        if (energy < inaudible) {
            return {at, 0.0, 0.0};
        }
        const double common = product(&rest[at], wanted);
        return {at, common / wantedEnergy, common / std::sqrt(energy * wantedEnergy)};
    }

    Signal rest;
    Signal wanted;
    double wantedEnergy = 0.0;
    std::vector<Match> matches;
};

} // namespace

Signal builtSound(const std::string& file) {
    const Clip clip = load(TOLMERE_GAME_DIRECTORY "/" + file);
    Signal mono(clip.frames());
    for (const Signal& channel : clip.channels) {
        add(mono, channel, 0.0F, 1.0F / static_cast<float>(clip.channels.size()));
    }
    return mono;
}

void Recording::add(std::span<const std::int16_t> samples) {
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
        frames.push_back(static_cast<float>(samples[i] + samples[i + 1]) / (2.0F * fullScale));
    }
}

float Recording::level(int from, int to) const {
    const auto heard = part(from, to);
    const double energy = product(heard.data(), heard);
    return static_cast<float>(std::sqrt(energy / std::max(1.0, static_cast<double>(heard.size()))));
}

float Recording::peak(int from, int to) const {
    float loudest = 0.0F;
    for (const float frame : part(from, to)) {
        loudest = std::max(loudest, std::abs(frame));
    }
    return loudest;
}

float Recording::tone(float hz, int from, int to) const {
    const auto heard = part(from, to);
    double real = 0.0;
    double imaginary = 0.0;
    for (std::size_t i = 0; i < heard.size(); ++i) {
        const double phase = static_cast<double>(twoPi * hz) * static_cast<double>(i) / 44100.0;
        real += heard[i] * std::cos(phase);
        imaginary += heard[i] * std::sin(phase);
    }
    return static_cast<float>(2.0 * std::hypot(real, imaginary) /
                              static_cast<double>(heard.size()));
}

std::vector<Heard> Recording::find(const Signal& sound) const {
    return findIn(sharpened(frames), sharpened(beginningOf(sound)));
}

std::vector<Heard> Recording::findLow(const Signal& sound) const {
    return findIn(dulled(frames), dulled(beginningOf(sound)));
}

std::vector<Heard> Recording::findIn(Signal all, Signal wanted) const {
    std::vector<std::size_t> places = begins; // steps share them, as buffers are longer
    places.erase(std::unique(places.begin(), places.end()), places.end());
    Search search(std::move(all), std::move(wanted), places);
    std::vector<Heard> found;
    for (Search::Match match = search.best(); match.likeness > sure; match = search.best()) {
        const auto step = std::lower_bound(begins.begin(), begins.end(), match.at);
        found.push_back({static_cast<int>(step - begins.begin()),
                         static_cast<float>(match.gain) * fullVolume,
                         static_cast<float>(match.likeness)});
        search.remove(match);
    }
    std::sort(found.begin(), found.end(),
              [](const Heard& a, const Heard& b) { return a.step < b.step; });
    return found;
}

std::size_t Recording::beginOf(int step) const {
    return step < steps() ? begins[static_cast<std::size_t>(std::max(step, 0))] : frames.size();
}

/// @throws std::out_of_range for steps that nothing was heard in
std::span<const float> Recording::part(int from, int to) const {
    const std::size_t begin = beginOf(from);
    const std::size_t end = beginOf(to);
    if (from < 0 || to > steps() || from >= to) {
        throw std::out_of_range("nothing was heard from step " + std::to_string(from) + " to " +
                                std::to_string(to));
    }
    return std::span(frames).subspan(begin, end - begin);
}
