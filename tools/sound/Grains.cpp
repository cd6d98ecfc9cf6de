#include "Grains.h"

#include "Filter.h"

#include <cmath>

Signal bubble(float hz, float rise, Chance& chance) {
    float seconds = std::min(0.25f, chance.between(14, 26) / hz + 0.01f);
    Signal signal = silence(seconds);
    float phase = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        float t = static_cast<float>(i) / samplesPerSecond;
        phase += hz * (1 + rise * t / seconds) / samplesPerSecond;
        float attack = std::min(1.0f, t * hz * 0.6f), left = 1 - t / seconds;
        signal[i] =
            std::sin(twoPi * phase) * attack * fading(t, seconds) * std::min(1.0f, 8 * left);
    }
    return signal;
}

Signal crumb(float hz, float seconds, Chance& chance) {
    Signal noise = whiteNoise(seconds, Chance(static_cast<std::uint32_t>(chance.unit() * 1e9f)));
    Signal ringing = bandPass(noise, hz, 4);
    shape(ringing, [&](float t) {
        return 4 * std::min(1.0f, t * 3000) * fading(t, seconds) *
               std::min(1.0f, 9 * (1 - t / seconds));
    });
    return ringing;
}
