// The music of the way down and through: the shaft and the gate, fire and water, the guide and the
// machine.

#include "Filter.h"
#include "Grains.h"
#include "Recipes.h"
#include "Score.h"

namespace {

// Air or water that comes and goes: it grows brighter as it grows louder.
Signal surge(float seconds, float from, float to, Chance chance) {
    float half = 0.5f * seconds;
    Signal noise =
        lowPass(pinkNoise(seconds, chance), {{0, from}, {half, to}, {seconds, from}}, 0.8f);
    shape(noise, Curve{{0, 0}, {half, 1}, {seconds, 0}});
    return noise;
}

// Drops that fall into a puddle, now here, now there.
void drip(Score& score, float until, float pause, float level) {
    Chance chance = score.own();
    for (float at = 1; at < until; at += pause * chance.between(0.4f, 1.6f)) {
        float hz = chance.between(700, 1900), loud = chance.between(0.3f, 1);
        score.play(at, bubble(hz, 0.5f, chance), level * loud, chance.swing());
        score.play(at + 0.11f, bubble(1.3f * hz, 0.7f, chance), 0.4f * level * loud);
    }
}

// Two blows and a third, on a gate far above.
void beatOnGate(Score& score, float at, float level) {
    for (float late : {0.0f, 1.3f, 3.2f}) {
        score.playDrum(at + late, 58, level, 0.2f);
        score.playStruck(at + late + 0.05f, material::plate(86, 1.8f, 0.7f, 16, score.own()), 500,
                         0.22f * level, 0.2f);
    }
}

// A turn of the wheel: four buckets, each of which spills.
void turnWheel(Score& score, float at, float tide, float root) {
    for (int bucket = 0; bucket < 4; ++bucket) {
        float key = bucket % 2 == 0 ? root : root + 7;
        float when = at + (static_cast<float>(bucket) + 0.1f) * tide / 4;
        score.playPiano(when, key, 0.35f, bucket == 0 ? 0.42f : 0.26f,
                        bucket % 2 == 0 ? -0.4f : 0.4f);
        Chance splash = score.own();
        for (float late = 0.2f; late < 1.1f; late += splash.between(0.06f, 0.25f)) {
            score.play(when + late, bubble(splash.between(180, 620), 0.4f, splash), 0.09f,
                       splash.swing());
        }
    }
}

// Clockwork that one comes near to and leaves again.
void tick(Score& score, float from, float to) {
    for (float at = from; at < to; at += 0.5f) {
        float near = std::sin(0.5f * twoPi * (at - from) / (to - from));
        bool even = std::lround(2 * at) % 2 == 0;
        score.playStruck(at, material::bar(even ? 1480.0f : 1170.0f, 0.09f, 0.6f), 5000,
                         0.045f * near, even ? -0.5f : 0.5f);
    }
}

} // namespace

// The shaft and the gate: a cello that climbs and never arrives, iron that hangs in the dark, and
// water that has eaten at both for a hundred years.
Signal mossAndRust(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-22), take.seconds, 5, take.around(1)), 0.055f);
    score.layUnder(drone(keyHz(-15), take.seconds, 3, take.around(2)), 0.05f);
    score.layWind(230, 0.5f);
    drip(score, take.seconds - 1, 1.7f, 0.1f);

    auto cello = [&](float at, float key) { score.playStrings(at - 0.4f, 4.2f, key, 620, 0.3f); };
    auto iron = [&](float at, float key) {
        score.playStruck(at, material::bar(keyHz(key), 6, 0.55f), 2600, 0.28f,
                         key > 2 ? 0.6f : -0.6f);
    };
    score.tellMotif(7, 2.3f, -10, cello);
    score.tellMotif(48, 2.3f, -10, cello);
    score.tellMotif(48, 2.3f, -3, cello);
    score.tellMotif(29, 1.6f, 2, iron);
    score.tellMotif(74, 1.9f, -10, iron);

    // It goes up by a half step and sinks back.
    constexpr std::array<float, 2> swells[] = {
        {1, -22}, {20, -21}, {36, -22}, {62, -19}, {77, -21}};
    for (auto [at, key] : swells) {
        score.playStrings(at, 15, key, 380, 0.16f);
        score.playStrings(at + 1, 13, key + 19, 480, 0.1f);
    }
    for (float at : {23.0f, 66.0f}) {
        score.playChord(at, 12, {-10, -3, 5}, vowel::o, 0.1f);
    }
    beatOnGate(score, 40, 0.2f);
    beatOnGate(score, 84, 0.28f);
    score.playPiano(21, 14, 0.2f, 0.25f, 0.5f);
    score.playPiano(22.8f, 17, 0.2f, 0.25f, 0.5f);
    score.playPiano(24.6f, 16, 0.15f, 0.25f, 0.5f);
    score.playPiano(63, -10, 0.6f, 0.35f, -0.2f);
    return score.heardIn(5.5f, 1900, 0.8f);
}

// Fire and water: a wheel that turns, pressure that comes and goes like a tide, and a bell that
// somebody has sunk.
Signal emberAndTide(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-17), take.seconds, 4, take.around(1)), 0.07f);
    constexpr int tides = 8;
    constexpr std::array<float, 3> chords[] = {{-17, -5, -2}, {-21, -5, 0},  {-12, -7, 3},
                                               {-10, -6, 2},  {-17, -5, -2}, {-14, -2, 5},
                                               {-21, -9, 0},  {-10, -4, 2}};
    float tide = take.seconds / tides;
    for (int n = 0; n < tides; ++n) {
        float at = static_cast<float>(n) * tide;
        const std::array<float, 3>& chord = chords[n];
        score.play(at, surge(1.25f * tide, 140, 850, score.apart()), 0.3f);
        if (n % 2 == 1) { // steam
            Signal steam = highPass(surge(0.5f * tide, 900, 5200, score.apart()), 1900);
            score.play(at + 0.45f * tide, steam, 0.16f, n % 4 == 1 ? 0.7f : -0.7f);
        }
        Curve heave{{0, -0.6f}, {0.5f * tide, 0}, {1.1f * tide, -0.8f}};
        score.play(at, strings(keyHz(chord[0]), 1.1f * tide, 3, heave, 520, score.apart()), 0.2f);
        score.play(at + 1, strings(keyHz(chord[1]), tide, 3, heave, 700, score.apart()), 0.14f);
        score.playChord(at + 1.5f, tide, chord, vowel::o, 0.09f);

        turnWheel(score, at, tide, chord[0]);
    }

    score.tellMotif(26, 2.4f, -5, [&](float at, float key) {
        score.playChoir(at - 0.5f, 4.5f, key, vowel::a, 0.26f);
        score.playChoir(at - 0.5f, 4.5f, key - 12, vowel::o, 0.2f);
    });
    score.tellMotif(63, 2.4f, -5,
                    [&](float at, float key) { score.playBell(at, key, 0.15f, -0.3f); });
    score.playMotif(87, 1.5f, 7, 0.2f, 0.3f, 0.5f);
    return score.heardIn(4.5f, 1700, 0.75f);
}

// The guide and the machine: a light that waits at each corner, and brass that is fond of it.
Signal ghostLight(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-16), take.seconds, 3, take.around(1)), 0.045f);
    score.layWind(1300, 0.25f);
    constexpr int bars = 12;
    constexpr std::array<float, 3> chords[] = {{-16, 0, 3}, {-9, -2, 7}, {-7, 0, 8},  {-12, -5, 3},
                                               {-16, 3, 8}, {-14, 2, 5}, {-9, -5, 3}, {-7, -4, 5},
                                               {-16, 0, 3}, {-9, 3, 10}, {-12, 3, 7}, {-14, -2, 5}};
    float bar = take.seconds / bars;
    for (int n = 0; n < bars; ++n) {
        float at = static_cast<float>(n) * bar;
        const std::array<float, 3>& chord = chords[n];
        score.playPiano(at, chord[0], 0.25f, 0.34f, -0.2f);
        score.playPiano(at + 1.1f, chord[1], 0.2f, 0.24f, 0);
        score.playPiano(at + 2.3f, chord[2], 0.2f, 0.24f, 0.2f);
        score.playPiano(at + 3.6f, chord[1] + 12, 0.15f, 0.2f, 0.3f);
        score.playGlass(at + 0.5f, bar + 1, chord[2] + 12, 0.07f);
        score.playStrings(at - 1, bar + 3, chord[1], 560, 0.1f);
        if (n % 4 != 0) {
            score.playChord(at, bar + 2, {chord[0] + 12, chord[1] + 12, chord[2] + 12}, vowel::u,
                            0.09f);
        }
    }

    auto brass = [&](float at, float key) {
        score.playStruck(at, material::bar(keyHz(key), 2.6f, 0.5f), 3200, 0.13f, 0.35f);
    };
    auto light = [&](float at, float key) { score.playGlass(at - 0.6f, 3.4f, key, 0.2f); };
    score.tellMotif(2, 1.2f, 24, brass);
    score.tellMotif(34, 1.2f, 24, brass);
    score.tellMotif(66, 1.2f, 24, brass);
    score.tellMotif(17, 2.2f, 12, light);
    score.tellMotif(74, 2.2f, 12, light);
    score.playMotif(49, 1.7f, 12, 0.3f, 0.4f, -0.4f);
    tick(score, 44, 80);
    return score.heardIn(4, 3800, 0.65f);
}
