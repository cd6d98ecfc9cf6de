#include "Instruments.h"

#include "Filter.h"
#include "Modal.h"

#include <cmath>

namespace {

// A sawtooth whose step is rounded off over two samples, which keeps it free of false tones.
float saw(float phase, float step) {
    float value = 2 * phase - 1;
    if (phase < step) {
        float x = phase / step;
        value -= 2 * x - x * x - 1;
    } else if (phase > 1 - step) {
        float x = (phase - 1) / step;
        value -= x * x + 2 * x + 1;
    }
    return value;
}

// Slow in and slow out, as bow and breath begin and end.
float swelling(float t, float seconds, float attack, float release) {
    float in = std::min(1.0f, t / attack), out = std::clamp((seconds - t) / release, 0.0f, 1.0f);
    return in * in * (3 - 2 * in) * out * out * (3 - 2 * out);
}

std::uint32_t seedFrom(Chance& chance) {
    return static_cast<std::uint32_t>(chance.unit() * 1e9f);
}

} // namespace

float keyHz(float semitones) {
    constexpr float d = 146.832f;
    return d * std::exp2(semitones / 12);
}

Signal piano(float hz, float seconds, float touch, Chance chance) {
    constexpr float stiffness = 0.0005f;
    Modes modes;
    for (int n = 1; n <= 22; ++n) {
        auto k = static_cast<float>(n);
        float partial = hz * k * std::sqrt(1 + stiffness * k * k);
        float gain = std::abs(std::sin(k * 0.41f)) / k;
        float ring = seconds * 1.4f / (1 + 0.22f * k);
        float detune = chance.between(0.0012f, 0.0042f);
        modes.push_back({partial, ring, gain});
        modes.push_back({partial * (1 + detune), ring * 0.8f, gain * 0.7f});
    }
    Signal note = strike(modes, 900 + 2600 * touch + hz, chance);
    Signal hammer = strike(material::plate(90, 0.12f, 1, 9, chance), 700, chance);
    add(note, hammer, 0, 0.1f);
    shape(note, [&](float t) {
        return std::min(1.0f, t / 0.003f) * swelling(t, seconds, 0.0001f, 0.6f);
    });
    return note;
}

Signal strings(float hz, float seconds, int players, const Curve& glide, float bright,
               Chance chance) {
    Signal sum = silence(seconds);
    for (int n = 0; n < players; ++n) {
        Wander drift(chance.between(0.3f, 0.9f), Chance(seedFrom(chance)));
        Wander bow(chance.between(3, 7), Chance(seedFrom(chance)));
        float own = chance.between(0.994f, 1.006f), phase = chance.unit();
        float vibrato = chance.between(4.2f, 5.8f), late = chance.between(0, 0.3f);
        float step = 0;
        for (std::size_t i = 0; i < sum.size(); ++i) {
            float t = static_cast<float>(i) / samplesPerSecond;
            if (i % 64 == 0) {
                float wave = 0.004f * std::sin(twoPi * vibrato * t);
                step = hz * own * std::exp2(glide(t - late) / 12) * (1 + wave) / samplesPerSecond;
            }
            float moved = step * (1 + 0.004f * drift.next());
            phase += moved;
            phase -= phase >= 1 ? 1.0f : 0.0f;
            sum[i] += saw(phase, moved) * (0.8f + 0.2f * bow.next());
        }
    }
    float attack = std::min(0.35f * seconds, 2.5f);
    shape(sum, [&](float t) {
        return swelling(t, seconds, attack, attack) / std::sqrt(static_cast<float>(players));
    });
    return highPass(lowPass(lowPass(std::move(sum), bright), 2.2f * bright), 0.7f * hz);
}

Signal choir(float hz, float seconds, int singers, const Vowel& from, const Vowel& to,
             Chance chance) {
    Signal sum = silence(seconds);
    for (int n = 0; n < singers; ++n) {
        Wander drift(chance.between(0.5f, 1.5f), Chance(seedFrom(chance)));
        float own = chance.between(0.992f, 1.008f), phase = chance.unit();
        float vibrato = chance.between(4.5f, 6), strong = chance.between(0.6f, 1);
        float late = chance.between(0, 0.1f) * seconds, hand = 1, level = 0;
        for (std::size_t i = 0; i < sum.size(); ++i) {
            float t = static_cast<float>(i) / samplesPerSecond;
            float wave = 0.007f * drift.next();
            if (i % 64 == 0) {
                hand = 1 + 0.006f * std::sin(twoPi * vibrato * t);
                level =
                    strong * swelling(t - late, seconds - late, 0.3f * seconds, 0.35f * seconds);
            }
            float step = hz * own * (hand + wave) / samplesPerSecond;
            phase += step;
            phase -= phase >= 1 ? 1.0f : 0.0f;
            sum[i] += level * saw(phase, step);
        }
    }
    Signal air = shaped(pinkNoise(seconds, chance), [&](float t) {
        return 0.25f * swelling(t, seconds, 0.3f * seconds, 0.35f * seconds);
    });
    add(sum, air, 0, std::sqrt(static_cast<float>(singers)));
    Signal sung = mouth(lowPass(std::move(sum), 1800), from, to, 1, 7);
    shape(sung, [&](float) { return 2 / std::sqrt(static_cast<float>(singers)); });
    return sung;
}

Signal bowedGlass(float hz, float seconds, Chance chance) {
    constexpr float ratios[] = {1, 1.004f, 2.32f, 4.25f};
    constexpr float gains[] = {1, 0.7f, 0.16f, 0.05f};
    Signal signal = silence(seconds);
    for (int n = 0; n < 4; ++n) {
        Wander drift(2, Chance(seedFrom(chance))), pressure(4, Chance(seedFrom(chance)));
        float phase = chance.unit();
        for (float& sample : signal) {
            phase += hz * ratios[n] * (1 + 0.0015f * drift.next()) / samplesPerSecond;
            phase -= phase >= 1 ? 1.0f : 0.0f;
            sample += gains[n] * (0.75f + 0.25f * pressure.next()) * std::sin(twoPi * phase);
        }
    }
    add(signal, bandPass(whiteNoise(seconds, chance), 3 * hz, 6), 0, 0.12f);
    shape(signal,
          [&](float t) { return 0.6f * swelling(t, seconds, 0.4f * seconds, 0.5f * seconds); });
    return signal;
}

Signal drone(float hz, float seconds, int partials, Chance chance) {
    Signal signal = silence(seconds);
    auto whole = [&](float cycles) {
        return std::max(1.0f, std::round(cycles * seconds)) / seconds;
    };
    for (int n = 1; n <= partials; ++n) {
        auto k = static_cast<float>(n);
        for (float detune : {-0.0016f, 0.0021f}) {
            double step = twoPi * whole(hz * k * (1 + detune * chance.between(0.5f, 1.5f))) /
                          samplesPerSecond;
            double breath = twoPi * whole(chance.between(0.03f, 0.11f)) / samplesPerSecond;
            double at = twoPi * chance.unit(), breathAt = twoPi * chance.unit();
            float gain = 1 / std::pow(k, 1.2f);
            for (std::size_t i = 0; i < signal.size(); ++i) {
                auto time = static_cast<double>(i);
                auto level = static_cast<float>(0.55 + 0.45 * std::sin(breathAt + breath * time));
                signal[i] += gain * level * static_cast<float>(std::sin(at + step * time));
            }
        }
    }
    return signal;
}

Signal drum(float hz, Chance chance) {
    Signal signal = strike(material::membrane(hz, 1.3f, 1), 5 * hz, chance);
    add(signal, strike(material::plate(hz * 0.8f, 0.6f, 1, 10, chance), 4 * hz, chance), 0, 0.5f);
    return levelled(std::move(signal));
}
