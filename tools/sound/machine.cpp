// What was built and still moves: latches, gates, hinges, motors, wires, and the ground itself.

#include "Filter.h"
#include "Grains.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"

namespace {

Signal iron(float hz, float seconds, float hardness, Chance chance) {
    return levelled(strike(material::plate(hz, seconds, 0.7f, 22, chance), hardness, chance));
}

// Two surfaces that stick and slip: a pulse at each slip wakes the body of wood or iron. `rate` is
// the number of slips a second, and chance makes it uneven.
Signal stickSlip(float seconds, const Curve& rate, float uneven, const Modes& body, Chance chance) {
    Signal pulses = silence(seconds);
    for (float t = chance.between(0, 0.02f); t < seconds;) {
        add(pulses, {chance.between(0.5f, 1), chance.between(-0.5f, 0)}, t);
        t += (1 + uneven * chance.swing()) / rate(t);
    }
    pulses.resize(static_cast<std::size_t>(framesOf(seconds)));
    Signal signal(pulses.size(), 0.0f);
    for (const Mode& mode : body) {
        float q = 0.3f * mode.hz * mode.seconds + 2;
        add(signal, bandPass(pulses, mode.hz, q), 0, mode.gain * std::sqrt(q));
    }
    return levelled(std::move(signal));
}

// Stone or iron dragged over stone.
Signal dragged(float seconds, float hz, Chance chance) {
    Chance grit = chance;
    Signal signal = levelled(bandPass(brownNoise(seconds, chance), hz, 0.6f));
    Signal grains = cloud(seconds, 220, grit, [&](float) {
        return crumb(hz * grit.between(1, 7), grit.between(0.004f, 0.02f), grit);
    });
    add(signal, levelled(std::move(grains)), 0, 0.6f);
    Wander sway(9, chance);
    shape(signal, [&](float) { return 0.65f + 0.35f * sway.next(); });
    return signal;
}

} // namespace

Signal latch(const Take& take) {
    // A bolt shot home: a scrape, the stop, and the plate that rings on.
    Chance chance = take.chance();
    float hz = chance.between(105, 190), at = chance.between(0.07f, 0.14f);
    Signal signal =
        shaped(dragged(at, 700, take.chance(1)), [&](float t) { return 0.35f * t / at; });
    add(signal, iron(hz, chance.between(0.5f, 0.9f), 2400, take.chance(2)), at);
    add(signal, iron(hz * 2.3f, 0.2f, 5000, take.chance(3)), at + chance.between(0.04f, 0.09f),
        0.45f);
    return inRoom(signal, {1, 0.8f, 2600, 0.35f}, take.side);
}

Signal gateFall(const Take& take) {
    constexpr float landing = 0.85f;
    Signal signal = shaped(dragged(landing, 260, take.around(1)),
                           Curve{{0, 0}, {0.15f, 0.35f}, {landing, 0.8f}});
    Chance chance = take.chance(2);
    for (float at = 0.05f, pause = 0.13f; at < landing; at += pause, pause *= 0.9f) {
        add(signal, iron(chance.between(420, 640), 0.12f, 3500, take.chance(3)), at,
            0.3f); // the chain runs out
    }
    add(signal, iron(58, 1.1f, 900, take.chance(4)), landing, 1.3f);
    add(signal, iron(165, 0.6f, 2600, take.chance(5)), landing, 0.6f);
    return inRoom(signal, {1.2f, 1.2f, 1900, 0.5f}, take.side);
}

Signal quake(const Take& take) {
    Wander heave(2.5f, take.chance(1));
    Signal signal = levelled(lowPass(brownNoise(take.seconds, take.around(2)), 75, 1.1f));
    shape(signal, [&](float) { return 0.6f + 0.4f * heave.next(); });
    add(signal, dragged(take.seconds, 190, take.around(3)), 0, 0.35f);
    Chance chance = take.chance(4);
    Signal stones = cloud(take.seconds, 7, chance, [&](float) {
        return iron(chance.between(110, 320), 0.1f, 900,
                    Chance(static_cast<std::uint32_t>(chance.unit() * 1e6f)));
    });
    add(signal, stones, 0, 0.35f);
    shape(signal, Curve{{0, 0}, {0.6f, 1}, {take.seconds - 1.5f, 1}, {take.seconds, 0}});
    return inRoom(signal, {1, 1.2f, 900, 0.3f}, take.side);
}

Signal grinding(const Take& take) {
    Signal signal = dragged(take.seconds, 240, take.chance(1));
    Signal groan = stickSlip(take.seconds, 37, 0.25f,
                             material::plate(150, 0.2f, 0.8f, 8, take.chance(2)), take.chance(3));
    add(signal, groan, 0, 0.3f);
    return signal;
}

Signal humming(const Take& take) {
    // A motor under load: its coils, its shaft that is not quite round, and the air about it.
    Signal signal = stickSlip(take.seconds, 50, 0.01f,
                              material::plate(98, 0.3f, 0.9f, 9, take.chance(1)), take.chance(2));
    signal = lowPass(std::move(signal), 900);
    Wander load(1.5f, take.chance(3));
    shape(signal,
          [&](float t) { return 0.8f + 0.12f * load.next() + 0.08f * std::sin(twoPi * 6 * t); });
    add(signal, bandPass(pinkNoise(take.seconds, take.around(4)), 420, 0.6f), 0, 0.3f);
    return signal;
}

Signal creak(const Take& take) {
    Chance chance = take.chance();
    float low = chance.between(22, 30), high = chance.between(60, 95);
    Curve rate{{0, low}, {0.45f * take.seconds, high}, {take.seconds, low * 0.7f}};
    Signal signal = stickSlip(
        take.seconds, rate, 0.12f,
        material::plate(chance.between(310, 380), 0.05f, 0.4f, 10, take.chance(1)), take.chance(2));
    shape(signal, Curve{{0, 0}, {0.1f, 0.7f}, {0.6f * take.seconds, 1}, {take.seconds, 0}});
    return inRoom(signal, {0.7f, 0.6f, 2800, 0.3f}, take.side);
}

Signal squeak(const Take& take) {
    Chance chance = take.chance();
    float hz = chance.between(520, 700), turn = chance.between(1.15f, 1.45f);
    Curve rate{{0, hz}, {0.4f * take.seconds, hz * turn}, {take.seconds, hz * 0.85f}};
    Signal signal = stickSlip(take.seconds, rate, 0.05f,
                              material::plate(610, 0.06f, 0.4f, 9, take.chance(1)), take.chance(2));
    add(signal, bandPass(whiteNoise(take.seconds, take.chance(3)), 2600, 2), 0, 0.15f);
    shape(signal, Curve{{0, 0},
                        {0.06f, 0.8f},
                        {0.35f * take.seconds, 0.5f},
                        {0.6f * take.seconds, 1},
                        {take.seconds, 0}});
    return inRoom(signal, {0.8f, 0.6f, 3200, 0.35f}, take.side);
}

Signal electricity(const Take& take) {
    // Arcs: each is a burst of sparks that die and strike again, a hundred times a second.
    Chance chance = take.chance();
    Signal sparks = cloud(take.seconds, 260, chance, [&](float) {
        return crumb(chance.between(1800, 7500), chance.between(0.001f, 0.006f), chance);
    });
    Signal buzz =
        bandPass(whiteNoise(take.seconds, take.around(1)), {{0, 3200}, {take.seconds, 900}}, 1.2f);
    float mains = chance.between(84, 118);
    shape(buzz, [&](float t) {
        float wave = std::sin(twoPi * mains * t);
        return wave > 0.2f ? wave * wave : 0.02f;
    });
    Signal signal = levelled(std::move(sparks));
    add(signal, levelled(std::move(buzz)), 0, 0.8f);
    std::vector<std::pair<float, float>> arcs;
    for (float at = 0; at < 0.65f * take.seconds; at += chance.between(0.07f, 0.24f)) {
        arcs.emplace_back(at, chance.between(0.4f, 1));
    }
    shape(signal, [&](float t) {
        float level = 0;
        for (auto [at, strength] : arcs) {
            level += t >= at ? strength * fading(t - at, 0.22f) : 0;
        }
        return level;
    });
    add(signal, iron(chance.between(60, 80), 0.3f, 500, take.chance(2)), 0, 0.5f);
    return inRoom(signal, {0.8f, 0.7f, 4500, 0.3f}, take.side);
}
