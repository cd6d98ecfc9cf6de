// Water: entered, left, endured.

#include "Filter.h"
#include "Grains.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"

namespace {

Signal bubbles(float seconds, const Curve& density, float lowest, float highest, Chance chance) {
    Signal signal = cloud(seconds, density, chance, [&](float) {
        float octaves = std::log2(highest / lowest) * chance.unit();
        return bubble(lowest * std::exp2(octaves), chance.between(0.1f, 0.9f), chance);
    });
    return levelled(std::move(signal));
}

// The sheet of drops that a splash throws up.
Signal spray(float seconds, float attack, float hz, Chance chance) {
    Signal noise = bandPass(whiteNoise(seconds, chance),
                            {{0, hz * 0.5f}, {0.3f * seconds, hz}, {seconds, hz * 0.8f}}, 0.6f);
    Wander flutter(60, chance);
    shape(noise, [&](float t) {
        float rise = std::min(1.0f, t / attack);
        return rise * rise * fading(t, 0.8f * seconds) * (0.7f + 0.3f * flutter.next());
    });
    return levelled(std::move(noise));
}

} // namespace

Signal plunge(const Take& take) {
    Chance chance = take.chance();
    float size = chance.between(0.8f, 1.3f);
    Signal signal = spray(0.5f * take.seconds, 0.008f, 2400 / size, take.chance(1));
    Signal hollow = bubble(95 / size, 1.1f, chance); // the hole closes over what fell in
    add(signal, hollow, chance.between(0.06f, 0.11f), 1.3f);
    add(signal, strike(material::membrane(110 / size, 0.12f, 1), 500, take.chance(2)), 0, 0.4f);
    Curve density{{0, 20}, {0.15f, 110}, {take.seconds, 6}};
    add(signal, bubbles(take.seconds - 0.1f, density, 260 / size, 1900, take.chance(3)), 0.07f,
        0.7f);
    return inRoom(signal, {0.7f, 0.7f, 3200, 0.25f}, take.side);
}

Signal emergence(const Take& take) {
    Chance chance = take.chance();
    float pull = chance.between(0.1f, 0.2f);
    Signal suck = bandPass(pinkNoise(pull + 0.1f, take.chance(1)), {{0, 300}, {pull, 1600}}, 1.5f);
    shape(suck, Curve{{0, 0}, {pull, 1}, {pull + 0.1f, 0}});
    Signal signal = levelled(std::move(suck));
    add(signal, spray(0.35f, 0.03f, 3400, take.chance(2)), 0.6f * pull, 0.5f);
    Curve drops{{0, 5}, {pull, 70}, {take.seconds, 8}};
    add(signal, bubbles(take.seconds - 0.05f, drops, 700, 3200, take.chance(3)), 0, 0.7f);
    return inRoom(signal, {0.6f, 0.7f, 3600, 0.25f}, take.side);
}

Signal underWater(const Take& take) {
    // The ears are shut: pressure, far currents, and now and then a bubble.
    Signal signal = levelled(lowPass(lowPass(brownNoise(take.seconds, take.around(1)), 240), 420));
    Wander current(0.8f, take.chance(2));
    shape(signal, [&](float) { return 0.75f + 0.25f * current.next(); });
    Signal stream = bandPass(pinkNoise(take.seconds, take.around(3)), 330, 3);
    Wander swirl(1.4f, take.chance(4));
    shape(stream, [&](float) { return 0.5f + 0.5f * swirl.next(); });
    add(signal, levelled(std::move(stream)), 0, 0.35f);
    add(signal, lowPass(bubbles(take.seconds, 5, 130, 520, take.chance(5)), 900), 0, 0.45f);
    return signal;
}

Signal bubbling(const Take& take) {
    Signal signal = bubbles(take.seconds, 75, 130, 900, take.chance(1));
    add(signal, bubbles(take.seconds, 14, 70, 190, take.chance(2)), 0, 0.8f);
    add(signal, levelled(lowPass(brownNoise(take.seconds, take.around(3)), 300)), 0, 0.25f);
    return inRoom(signal, {0.6f, 0.6f, 2400, 0.2f}, take.side);
}

Signal waterfall(const Take& take) {
    Signal fall = bandPass(pinkNoise(take.seconds, take.around(1)), 1300, 0.35f);
    Wander gust(3, take.around(2));
    shape(fall, [&](float) { return 0.85f + 0.15f * gust.next(); });
    Signal signal = levelled(std::move(fall));
    add(signal, levelled(lowPass(brownNoise(take.seconds, take.around(3)), 190)), 0, 0.6f);
    add(signal, bubbles(take.seconds, 190, 380, 2600, take.around(4)), 0, 0.5f);
    return signal;
}

Signal wetSteps(const Take& take) {
    // Four flat, wet feet that take their time.
    Signal signal = silence(take.seconds);
    Chance chance = take.chance();
    for (int n = 0; n < 4; ++n) {
        float at = 0.04f + (static_cast<float>(n) + (n % 2 == 0 ? 0 : 0.12f)) * take.seconds / 4;
        Signal slap = bandPass(pinkNoise(0.2f, take.chance(10 + static_cast<std::uint32_t>(n))),
                               {{0, chance.between(700, 1100)}, {0.2f, 380}}, 1.1f);
        shape(slap, [](float t) { return std::min(1.0f, t * 500) * fading(t, 0.16f); });
        add(signal, levelled(std::move(slap)), at, chance.between(0.7f, 1));
        add(signal, strike(material::membrane(chance.between(75, 95), 0.14f, 1), 350, chance), at,
            0.5f);
        Signal suction =
            bandPass(whiteNoise(0.16f, chance), {{0, 350}, {0.16f, chance.between(1300, 2000)}}, 5);
        shape(suction, Curve{{0, 0}, {0.12f, 1}, {0.16f, 0}});
        add(signal, levelled(std::move(suction)), at + 0.17f, 0.22f);
        for (int k = 0; k < 3; ++k) {
            add(signal, bubble(chance.between(600, 1500), 0.5f, chance),
                at + chance.between(0.03f, 0.22f), 0.22f);
        }
    }
    return inRoom(signal, {0.5f, 0.6f, 2300, 0.25f}, take.side);
}
