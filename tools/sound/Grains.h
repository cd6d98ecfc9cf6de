#pragma once

#include "Curve.h"
#include "Signal.h"

/// Small sounds, and clouds of many of them.

/// An air bubble under water: a tone that rises as the bubble nears the surface. A bubble of 3
/// millimetres sings at 1000 hertz, one of 3 centimetres at 100.
Signal bubble(float hz, float rise, Chance& chance);

/// A crumb of stone, glass or bone that breaks or lands.
Signal crumb(float hz, float seconds, Chance& chance);

/// Scatters grains at random: `density(t)` of them a second; each is made by `grain(t)` and as
/// loud as chance will have it, few loud and many quiet.
template <class Grain>
Signal cloud(float seconds, const Curve& density, Chance& chance, const Grain& grain) {
    Signal signal = silence(seconds);
    for (float t = 0;;) {
        float most = std::max(density(t), 0.5f);
        t -= std::log(1 - chance.unit() * 0.9999f) / most;
        if (t >= seconds) {
            return signal;
        }
        float loud = chance.unit();
        add(signal, grain(t), t, 0.08f + 0.92f * loud * loud * loud);
    }
}
