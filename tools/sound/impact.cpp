// What strikes what: feet, stones, bodies, drums of doom, and the gate.

#include "Filter.h"
#include "Grains.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"

namespace {

// Crumbs that break away and settle.
Signal debris(float seconds, float hz, float perSecond, Chance chance) {
    Curve fewer{{0, perSecond}, {seconds, perSecond * 0.05f}};
    Signal grains = cloud(seconds, fewer, chance, [&](float) {
        return crumb(hz * chance.between(0.4f, 2), chance.between(0.006f, 0.03f), chance);
    });
    return levelled(std::move(grains));
}

// A skin whose tone sinks after the blow, as large drums and struck earth do.
Signal boom(float hz, float seconds, float fall, Chance chance) {
    Signal signal = silence(seconds);
    float phase = 0, uneven = chance.between(0.97f, 1.03f);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        float t = static_cast<float>(i) / samplesPerSecond;
        phase += hz * uneven * (1 + fall * fading(t, 0.18f)) / samplesPerSecond;
        signal[i] = std::sin(twoPi * phase) * std::min(1.0f, t * 400) * fading(t, seconds);
    }
    add(signal, strike(material::membrane(hz * 1.6f, seconds * 0.4f, 0.9f), hz * 6, chance), 0,
        0.35f);
    return signal;
}

Signal knock(float hz, float seconds, float hardness, Chance chance) {
    return levelled(strike(material::plate(hz, seconds, 1.1f, 18, chance), hardness, chance));
}

} // namespace

Signal footstep(const Take& take) {
    Chance chance = take.chance();
    Signal signal = levelled(boom(chance.between(78, 105), 0.16f, 0.7f, take.chance(1)));
    add(signal, knock(chance.between(210, 300), 0.05f, 900, take.chance(2)), 0, 0.35f);
    Signal grit = lowPass(debris(0.13f, 2300, 350, take.chance(3)), chance.between(2500, 4200));
    add(signal, grit, 0.008f, 0.5f);
    return inRoom(signal, {0.25f, 0.4f, 2200, 0.2f}, take.side);
}

Signal thud(const Take& take) {
    Signal signal = levelled(boom(62, 0.4f, 0.9f, take.chance(1)));
    add(signal, knock(140, 0.12f, 900, take.chance(2)), 0, 0.6f);
    add(signal, debris(0.4f, 1700, 160, take.chance(3)), 0.01f, 0.4f);
    return inRoom(signal, {0.6f, 0.6f, 2000, 0.35f}, take.side);
}

Signal rolling(const Take& take) {
    // A round stone is never quite round: each bump knocks on stone, in a slow rhythm.
    Chance chance = take.chance();
    Signal bumps = cloud(take.seconds, 55, chance, [&](float) {
        return knock(chance.between(90, 260), 0.06f, 700,
                     Chance(static_cast<std::uint32_t>(chance.unit() * 1e6f)));
    });
    Wander sway(5, take.chance(1));
    Signal rumble = lowPass(brownNoise(take.seconds, take.chance(2)), 170, 1.5f);
    shape(rumble, [&](float) { return 0.7f + 0.3f * sway.next(); });
    Signal signal = levelled(std::move(rumble));
    add(signal, levelled(std::move(bumps)), 0, 0.6f);
    add(signal, bandPass(pinkNoise(take.seconds, take.chance(3)), 1100, 0.8f), 0, 0.12f);
    return signal;
}

Signal bodyBlow(const Take& take) {
    Signal signal = levelled(boom(48, 0.7f, 1.4f, take.chance(1)));
    add(signal, knock(180, 0.1f, 1400, take.chance(2)), 0, 0.9f);
    add(signal, shaped(lowPass(whiteNoise(0.12f, take.around(3)), 1800),
                       [](float t) { return fading(t, 0.11f); }));
    saturate(signal, 1.6f);
    return inRoom(signal, {1.4f, 0.9f, 1800, 0.5f}, take.side);
}

Signal brightDrum(const Take& take) {
    // The good drum: a plain fifth of bronze rings over it.
    Signal signal = levelled(boom(58, 1.1f, 1, take.chance(1)));
    add(signal, levelled(strike(material::bar(220, 1.8f, 0.8f), 1600, take.chance(2))), 0, 0.4f);
    add(signal, levelled(strike(material::bar(330, 1.6f, 0.8f), 1600, take.chance(3))), 0.012f,
        0.3f);
    return inRoom(signal, {2, 1.1f, 3000, 0.5f}, take.side);
}

Signal darkDrum(const Take& take) {
    // Its twin: two skins a tritone apart, and a plate that should not rattle.
    Signal signal = levelled(boom(41, 1.3f, 1.6f, take.chance(1)));
    add(signal, levelled(boom(58, 0.9f, 0.6f, take.chance(2))), 0.03f, 0.5f);
    add(signal,
        levelled(strike(material::plate(93, 1.4f, 0.9f, 16, take.chance(3)), 600, take.chance(4))),
        0, 0.5f);
    saturate(signal, 1.3f);
    return inRoom(signal, {2.2f, 1.3f, 1300, 0.6f}, take.side);
}

Signal gateBlow(const Take& take) {
    // Something heavy runs against oak; the bars jump in their holders afterwards.
    Signal signal = levelled(boom(54, 0.5f, 1, take.chance(1)));
    add(signal, knock(74, 0.45f, 800, take.chance(2)), 0, 0.9f);
    Chance chance = take.chance(3);
    for (float at = 0.07f; at < 0.42f; at += chance.between(0.05f, 0.11f)) {
        add(signal, knock(chance.between(380, 520), 0.09f, 2600, take.chance(4)), at,
            0.3f * fading(at, 0.7f));
    }
    add(signal, debris(0.6f, 1500, 120, take.chance(5)), 0.02f, 0.3f);
    return inRoom(signal, {1.1f, 1, 1700, 0.5f}, take.side);
}

Signal giantStep(const Take& take) {
    Signal signal = levelled(boom(34, 1.2f, 0.8f, take.chance(1)));
    Signal earth = lowPass(brownNoise(1.1f, take.around(2)), 260);
    add(signal, levelled(shaped(std::move(earth), [](float t) { return fading(t, 0.8f); })), 0,
        0.6f);
    add(signal, debris(1.1f, 900, 90, take.chance(3)), 0.05f, 0.35f);
    saturate(signal, 1.5f);
    return inRoom(signal, {1.3f, 1.2f, 1000, 0.5f}, take.side);
}
