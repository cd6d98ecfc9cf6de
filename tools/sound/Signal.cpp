#include "Signal.h"

#include <algorithm>
#include <cmath>

Signal silence(float seconds) {
    return Signal(static_cast<std::size_t>(std::max(0, framesOf(seconds))), 0.0f);
}

Signal whiteNoise(float seconds, Chance chance) {
    Signal signal = silence(seconds);
    std::ranges::generate(signal, [&] { return chance.swing(); });
    return signal;
}

Signal pinkNoise(float seconds, Chance chance) {
    // Three leaky sums whose slopes add up to 3 decibels an octave within half a decibel.
    Signal signal = silence(seconds);
    float a = 0, b = 0, c = 0;
    for (float& sample : signal) {
        float white = chance.swing();
        a = 0.99765f * a + 0.0990460f * white;
        b = 0.96300f * b + 0.2965164f * white;
        c = 0.57000f * c + 1.0526913f * white;
        sample = 0.35f * (a + b + c + 0.1848f * white);
    }
    return signal;
}

Signal brownNoise(float seconds, Chance chance) {
    Signal signal = silence(seconds);
    float sum = 0;
    for (float& sample : signal) {
        sum = 0.996f * sum + 0.08f * chance.swing();
        sample = sum;
    }
    return signal;
}

void add(Signal& into, const Signal& part, float at, float gain) {
    auto start = static_cast<std::size_t>(std::max(0, framesOf(at)));
    into.resize(std::max(into.size(), start + part.size()));
    for (std::size_t i = 0; i < part.size(); ++i) {
        into[start + i] += gain * part[i];
    }
}

void saturate(Signal& signal, float drive) {
    for (float& sample : signal) {
        sample = std::tanh(drive * sample);
    }
}

float peakOf(const Signal& signal) {
    float peak = 0;
    for (float sample : signal) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

Signal levelled(Signal signal) {
    if (float peak = peakOf(signal); peak > 0) {
        for (float& sample : signal) {
            sample /= peak;
        }
    }
    return signal;
}

Wander::Wander(float rate, Chance start)
    : chance(start),
      step(rate / samplesPerSecond),
      from(chance.swing()),
      to(chance.swing()) {}

float Wander::next() {
    phase += step;
    if (phase >= 1) {
        phase -= 1;
        from = to;
        to = chance.swing();
    }
    return from + (to - from) * phase * phase * (3 - 2 * phase);
}
