#include "Voice.h"

#include "Filter.h"

Signal throat(float seconds, const Throat& throat, Chance chance) {
    Signal signal = silence(seconds);
    Filter hiss(3500, 0.5f);
    float phase = 0, uneven = 0, beat = 1;
    bool second = false;
    float last = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        float t = static_cast<float>(i) / samplesPerSecond;
        phase += throat.hz(t) * (1 + uneven) / samplesPerSecond;
        if (phase >= 1) {
            phase -= 1;
            second = !second;
            uneven = throat.rough * chance.swing();
            beat =
                (1 - 0.8f * throat.rough * chance.unit()) * (second ? 1 - throat.subharmonic : 1);
        }
        // The flow through the cords: a slow opening and a sudden end. Its slope is what sounds.
        float open = phase / 0.65f;
        float flow = open < 1 ? open * open * (1 - open) * 6.75f : 0;
        float pulse = (flow * beat - last) * 8;
        last = flow * beat;
        hiss.step(chance.swing());
        float air = hiss.band * (0.35f + 0.65f * flow * throat.voiced(t));
        signal[i] = throat.voiced(t) * pulse + 1.6f * throat.breath(t) * air;
        constexpr float closing = 0.06f; // seconds; no throat stops at once
        signal[i] *= std::clamp((seconds - t) / closing, 0.0f, 1.0f);
    }
    return signal;
}

Signal mouth(const Signal& source, const Vowel& from, const Vowel& to, float size, float q) {
    constexpr float strengths[] = {1, 0.6f, 0.3f};
    float end = static_cast<float>(source.size()) / samplesPerSecond;
    Signal signal(source.size(), 0.0f);
    for (std::size_t n = 0; n < from.size(); ++n) {
        Curve hz{{0, from[n] * size}, {end, to[n] * size}};
        add(signal, bandPass(source, hz, q), 0, strengths[n]);
    }
    add(signal, lowPass(source, 250 * size), 0, 0.12f);
    return signal;
}
