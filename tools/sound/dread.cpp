// What has no body: whispers, presences, falling, hovering, wind.

#include "Filter.h"
#include "Grains.h"
#include "Instruments.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"

#include <algorithm>

Signal whisper(const Take& take) {
    // Syllables without words, from all sides, some of them backwards.
    constexpr Vowel mouths[] = {vowel::a, vowel::e, vowel::i, vowel::o, vowel::u, vowel::schwa};
    Chance chance = take.chance();
    auto any = [&]() -> const Vowel& { return mouths[static_cast<int>(chance.unit() * 6) % 6]; };
    Signal signal = silence(take.seconds);
    float end = 0.72f * take.seconds;
    for (float at = 0; at < end; at += chance.between(0.05f, 0.13f)) {
        float length = chance.between(0.09f, 0.26f), place = chance.swing();
        Throat breath{
            .hz = 100, .voiced = 0, .breath = Curve{{0, 0}, {0.3f * length, 1}, {length, 0}}};
        Chance own(static_cast<std::uint32_t>(chance.unit() * 1e6f));
        Signal syllable =
            mouth(throat(length, breath, own), any(), any(), chance.between(0.9f, 1.3f), 9);
        if (chance.unit() < 0.35f) { // a consonant
            add(syllable, shaped(bandPass(whiteNoise(0.07f, own), chance.between(4200, 7000), 2),
                                 Curve{{0, 0}, {0.02f, 0.5f}, {0.07f, 0}}));
        }
        if (chance.unit() < 0.3f) {
            std::ranges::reverse(syllable);
        }
        add(signal, syllable, at,
            (0.35f + 0.65f * std::sin(3.14f * at / end)) * take.heardFrom(place));
    }
    return inRoom(signal, {1.3f, 1, 5200, 0.5f}, take.side);
}

Signal mystery(const Take& take) {
    // Bowed glass on the first notes of the motif, and a low bell that answers.
    Signal signal = silence(take.seconds);
    float at = 0;
    for (int key : {0, 3, 2}) {
        add(signal,
            bowedGlass(keyHz(static_cast<float>(key) + 12), 2.4f,
                       take.around(static_cast<std::uint32_t>(10 + key))),
            at, 0.6f);
        at += 0.5f;
    }
    add(signal, levelled(strike(material::bell(keyHz(-12), 3), 900, take.chance(2))), 1.3f, 0.8f);
    add(signal, strings(keyHz(-24), 3.2f, 3, 0, 320, take.around(3)), 0.2f, 0.3f);
    return inRoom(signal, {2, 1.4f, 2600, 0.6f}, take.side);
}

Signal fallingDark(const Take& take) {
    // The floor is gone: everything sinks, and nothing lands.
    float end = 0.88f * take.seconds;
    Curve sinking{{0, 0}, {end, -9}};
    Signal signal = strings(keyHz(-10), end, 5, sinking, 420, take.around(1));
    add(signal, strings(keyHz(-4), end, 4, sinking, 380, take.around(2)), 0, 0.7f);
    add(signal, choir(keyHz(2), end, 5, vowel::a, vowel::u, take.around(3)), 0.05f * end, 0.35f);
    Signal gale = bandPass(pinkNoise(end, take.around(4)), {{0, 900}, {end, 160}}, 1.6f);
    shape(gale, Curve{{0, 0}, {0.3f * end, 1}, {end, 0}});
    add(signal, gale, 0, 0.5f);
    return inRoom(signal, {2.5f, 1.5f, 1900, 0.6f}, take.side);
}

Signal hovering(const Take& take) {
    // A thing that hangs in the air and turns: beating glass and a slow whirr.
    Signal signal = drone(keyHz(-12), take.seconds, 5, take.around(1));
    add(signal, drone(keyHz(-5.7f), take.seconds, 4, take.around(2)), 0, 0.5f);
    add(signal, drone(keyHz(13.2f), take.seconds, 2, take.around(3)), 0, 0.12f);
    Signal whirr = bandPass(pinkNoise(take.seconds, take.around(4)), 620, 3);
    float turns = std::round(take.seconds * 3.2f) / take.seconds;
    shape(whirr, [&](float t) { return 0.5f + 0.5f * std::sin(twoPi * turns * t + take.side); });
    add(signal, whirr, 0, 1.1f);
    return signal;
}

Signal wind(const Take& take) {
    Signal signal = silence(take.seconds);
    constexpr float holes[] = {210, 340, 560}; // the passages it whistles in
    for (std::uint32_t n = 0; n < 3; ++n) {
        Wander gust(0.5f, take.chance(n)), bend(0.7f, take.around(10 + n));
        Signal noise = pinkNoise(take.seconds, take.around(20 + n));
        Filter passage(holes[n], 7);
        for (float& sample : noise) {
            passage.tune(holes[n] * (1 + 0.25f * bend.next()), 7);
            passage.step(sample);
            float strength = 0.5f + 0.5f * gust.next();
            sample = passage.band * strength * strength;
        }
        add(signal, noise, 0, 1.4f);
    }
    add(signal, lowPass(brownNoise(take.seconds, take.around(30)), 160), 0, 0.08f);
    return signal;
}
