// The large sounds of fear that scripts strike at a turn of the story, each with a shape of its
// own.

#include "Filter.h"
#include "Grains.h"
#include "Instruments.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"

namespace {

Signal cluster(std::initializer_list<float> keys, float seconds, const Curve& glide, float bright,
               const Take& take) {
    Signal signal;
    std::uint32_t n = 40;
    for (float key : keys) {
        add(signal, strings(keyHz(key), seconds, 3, glide, bright, take.around(n++)));
    }
    return levelled(std::move(signal));
}

} // namespace

Signal sting(const Take& take) {
    // It is here: a blow, and the strings that were struck with it shiver out.
    Signal signal = silence(0);
    add(signal, drum(44, take.chance(1)), 0, 0.55f);
    Signal shock = cluster({1, 2, 7.5f, 13}, 1.5f, 0, 2600, take);
    shape(shock,
          [](float t) { return (0.6f + 0.4f * std::sin(twoPi * 13 * t)) * fading(t, 2.2f); });
    add(signal, shock, 0, 1.6f);
    add(signal,
        levelled(strike(material::plate(70, 1.6f, 0.6f, 20, take.chance(2)), 3500, take.chance(3))),
        0, 0.5f);
    return inRoom(signal, {2, 1.2f, 3200, 0.6f}, take.side);
}

Signal climbingStrings(const Take& take) {
    float end = 0.8f * take.seconds;
    Signal signal = cluster({-5, -4, 1}, end, {{0, 0}, {end, 7}}, 1900, take);
    Wander bow(17, take.around(1));
    shape(signal,
          [&](float t) { return (0.55f + 0.45f * bow.next()) * (0.15f + 0.85f * t / end); });
    add(signal, levelled(whiteNoise(0.01f, take.around(2))), end - 0.02f, 0.1f);
    return inRoom(signal, {1.6f, 1.1f, 3000, 0.5f}, take.side);
}

Signal warDrums(const Take& take) {
    Signal signal = silence(take.seconds);
    Chance chance = take.chance();
    constexpr float beats[] = {0, 0.42f, 0.63f, 1.26f, 1.68f, 1.89f, 2.52f};
    for (float at : beats) {
        std::uint32_t n = static_cast<std::uint32_t>(at * 100);
        add(signal, drum(at == 0 || at > 2.5f ? 46.0f : 61.0f, take.chance(n)), at,
            chance.between(0.65f, 1) * take.heardFrom(0.5f * chance.swing()));
    }
    add(signal, cluster({-24, -23}, 3.6f, 0, 520, take), 0.1f, 0.5f);
    saturate(signal, 1.2f);
    return inRoom(signal, {1.8f, 1.3f, 1900, 0.55f}, take.side);
}

Signal collapse(const Take& take) {
    // Won: the chord lets go, voice by voice, and glass falls.
    float end = 0.75f * take.seconds;
    Signal signal = cluster({0, 3, 6, 9}, end, {{0, 0}, {0.2f * end, 0}, {end, -14}}, 1500, take);
    Chance chance = take.chance(1);
    Curve falling{{0, 5}, {0.3f * end, 60}, {end, 3}};
    Signal glass = cloud(end, falling, chance, [&](float) {
        Chance own(static_cast<std::uint32_t>(chance.unit() * 1e6f));
        return strike(material::bar(chance.between(1500, 4200), 0.25f, 0.5f), 7000, own);
    });
    add(signal, levelled(std::move(glass)), 0.1f, 0.4f);
    add(signal, drum(39, take.chance(2)), 0, 0.8f);
    return inRoom(signal, {2.2f, 1.4f, 3000, 0.6f}, take.side);
}

Signal metalMoan(const Take& take) {
    // A long pipe, bowed by what crawls in it.
    float end = 0.8f * take.seconds;
    Throat bow{.hz = Curve{{0, 38}, {0.5f * end, 57}, {end, 41}},
               .voiced = Curve{{0, 0}, {0.35f * end, 1}, {end, 0}},
               .breath = 0.5f,
               .rough = 0.18f};
    Signal source = throat(end, bow, take.chance(1));
    Signal signal;
    for (const Mode& mode : material::plate(118, 1, 0.3f, 12, take.chance(2))) {
        Curve bending{{0, mode.hz}, {0.5f * end, mode.hz * 1.12f}, {end, mode.hz * 0.94f}};
        add(signal, bandPass(source, bending, 28), 0, mode.gain * 3);
    }
    signal = levelled(std::move(signal));
    Chance chance = take.chance(3);
    for (float at = 0.3f; at < end; at += chance.between(0.3f, 0.6f)) {
        add(signal,
            levelled(strike(material::plate(160, 0.5f, 0.7f, 14, take.chance(4)), 2000, chance)),
            at, 0.15f * take.heardFrom(chance.swing()));
    }
    return inRoom(signal, {2, 1.5f, 2300, 0.7f}, take.side);
}

Signal deepPulse(const Take& take) {
    // Before the gate: a pulse in the ground that draws nearer.
    float end = 0.85f * take.seconds;
    Signal signal = silence(end);
    float pause = 0.62f;
    for (float at = 0.05f; at < end - 0.5f; at += pause, pause *= 0.94f) {
        add(signal, drum(36, take.chance(static_cast<std::uint32_t>(at * 50))), at,
            0.3f + 0.7f * at / end);
    }
    add(signal, cluster({-24, -17.5f}, end, {{0, 0}, {end, 1}}, 600, take), 0, 0.6f);
    return inRoom(signal, {1.5f, 1.4f, 1200, 0.5f}, take.side);
}

Signal riser(const Take& take) {
    // Into the white: all that there is draws together, and is gone.
    constexpr float peak = 3.3f;
    Curve growing{{0, 0}, {0.75f * peak, 0.35f}, {peak, 1}, {peak + 0.05f, 0}};
    Signal air = bandPass(pinkNoise(peak + 0.1f, take.around(1)), {{0, 180}, {peak, 4200}}, 1.4f);
    Signal signal = levelled(shaped(std::move(air), growing));
    Signal rising = strings(keyHz(-12), 2 * peak, 5, {{0, 0}, {peak, 12}}, 1700, take.around(2));
    rising.resize(static_cast<std::size_t>(framesOf(peak + 0.1f)));
    add(signal, levelled(shaped(std::move(rising), growing)), 0, 0.7f);
    Signal voices = choir(keyHz(2), 2 * peak, 5, vowel::u, vowel::a, take.around(3));
    voices.resize(static_cast<std::size_t>(framesOf(peak + 0.1f)));
    add(signal, levelled(shaped(std::move(voices), growing)), 0, 0.6f);
    return inRoom(signal, {1.6f, 1.4f, 3600, 0.4f}, take.side);
}

Signal coldChoir(const Take& take) {
    float end = 0.75f * take.seconds;
    Signal signal;
    std::uint32_t n = 1;
    for (float key : {-12.0f, -5.0f, 1.0f, 2.0f}) {
        add(signal, choir(keyHz(key), end, 4, vowel::o, vowel::a, take.around(n++)));
    }
    signal = levelled(std::move(signal));
    add(signal, drum(41, take.chance(9)), 0, 0.5f);
    add(signal, bowedGlass(keyHz(25), end, take.around(10)), 0.2f, 0.12f);
    return inRoom(signal, {2.2f, 1.5f, 2600, 0.7f}, take.side);
}
