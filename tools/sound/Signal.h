#pragma once

#include "Chance.h"

#include <cmath>
#include <vector>

inline constexpr int samplesPerSecond = 44100;
inline constexpr float twoPi = 6.28318531f;

inline int framesOf(float seconds) {
    return static_cast<int>(std::lround(seconds * samplesPerSecond));
}

/// One channel of sound, 44100 samples a second; full scale is 1, but only the finished clip has
/// to keep to it.
using Signal = std::vector<float>;

Signal silence(float seconds);

/// Hisses with a flat spectrum, with 3 decibels less an octave (rushing) and with 6 (rumbling),
/// all about as strong.
Signal whiteNoise(float seconds, Chance chance);
Signal pinkNoise(float seconds, Chance chance);
Signal brownNoise(float seconds, Chance chance);

/// Adds a part, starting at a time in seconds; the signal grows as needed.
void add(Signal& into, const Signal& part, float at = 0, float gain = 1);

/// Multiplies each sample by `gainAt(t)`, t in seconds.
template <class GainAt>
void shape(Signal& signal, const GainAt& gainAt) {
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] *= gainAt(static_cast<float>(i) / samplesPerSecond);
    }
}

template <class GainAt>
Signal shaped(Signal signal, const GainAt& gainAt) {
    shape(signal, gainAt);
    return signal;
}

/// Bends loud samples towards 1 and adds the warmth of an overdriven membrane.
void saturate(Signal& signal, float drive);

float peakOf(const Signal& signal);

/// Scales the signal so that its loudest sample is 1.
Signal levelled(Signal signal);

/// A random wander of -1 to 1 that passes a new point `rate` times a second: what keeps a tone
/// from standing still.
class Wander {
public:
    Wander(float rate, Chance chance);
    float next();

private:
    Chance chance;
    float step, phase = 0, from, to;
};
