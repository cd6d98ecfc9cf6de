#include "Modal.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <span>

namespace {

Modes modesOf(std::span<const float> ratios, float hz, float seconds, float damping) {
    Modes modes;
    for (float ratio : ratios) {
        modes.push_back({hz * ratio, seconds / std::pow(ratio, damping), 1 / std::sqrt(ratio)});
    }
    return modes;
}

} // namespace

Modes material::bar(float hz, float seconds, float damping) {
    constexpr float ratios[] = {1, 2.756f, 5.404f, 8.933f, 13.34f, 18.64f};
    return modesOf(ratios, hz, seconds, damping);
}

Modes material::membrane(float hz, float seconds, float damping) {
    constexpr float ratios[] = {1,      1.593f, 2.135f, 2.295f, 2.653f, 2.917f,
                                3.155f, 3.500f, 3.598f, 4.059f, 4.230f, 4.601f};
    return modesOf(ratios, hz, seconds, damping);
}

Modes material::bell(float hz, float seconds) {
    constexpr float ratios[] = {0.5f, 1, 1.183f, 1.506f, 2, 2.514f, 2.662f, 3.011f, 4.166f, 5.433f};
    Modes modes = modesOf(ratios, hz, seconds, 0.8f);
    // No bell is quite round: each mode is two, which beat against each other.
    for (std::size_t i = 0, count = modes.size(); i < count; ++i) {
        modes.push_back({modes[i].hz * 1.0017f, modes[i].seconds * 0.9f, modes[i].gain * 0.6f});
    }
    return modes;
}

Modes material::plate(float hz, float seconds, float damping, int count, Chance chance) {
    Modes modes;
    for (int i = 0; i < count; ++i) {
        float ratio = 1 + static_cast<float>(i) * chance.between(0.55f, 0.95f);
        modes.push_back({hz * ratio,
                         seconds * chance.between(0.6f, 1.2f) / std::pow(ratio, damping),
                         chance.between(0.4f, 1) / std::sqrt(ratio)});
    }
    return modes;
}

Signal strike(const Modes& modes, float hardness, Chance chance) {
    Signal signal;
    for (const Mode& mode : modes) {
        float softened = std::exp(-mode.hz * mode.hz / (hardness * hardness));
        double gain = mode.gain * softened * chance.between(0.6f, 1);
        if (mode.hz > 18000 || gain < 0.0005) {
            continue;
        }
        constexpr double silent = 0.0002;
        int frames =
            static_cast<int>(mode.seconds * samplesPerSecond * std::log(gain / silent) / 6.9078);
        std::complex<double> turn =
            std::polar(std::exp(-6.9078 / (mode.seconds * samplesPerSecond)),
                       2 * 3.14159265358979 * mode.hz / samplesPerSecond);
        std::complex<double> state(gain, 0);
        signal.resize(std::max(signal.size(), static_cast<std::size_t>(std::max(frames, 0))));
        for (int i = 0; i < frames; ++i) {
            signal[static_cast<std::size_t>(i)] += static_cast<float>(state.imag());
            state *= turn;
        }
    }
    return signal;
}
