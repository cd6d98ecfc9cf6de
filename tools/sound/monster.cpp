// Them.

#include "Filter.h"
#include "Grains.h"
#include "Modal.h"
#include "Recipes.h"
#include "Reverb.h"
#include "Voice.h"

namespace {

constexpr float huge = 0.62f; // the mouth of a beast

} // namespace

Signal growl(const Take& take) {
    Chance chance = take.chance();
    float end = 0.85f * take.seconds, hz = chance.between(52, 74);
    Throat deep{
        .hz =
            Curve{{0, hz * 0.8f}, {0.35f * end, hz * chance.between(1.1f, 1.4f)}, {end, hz * 0.7f}},
        .voiced = Curve{{0, 0}, {0.2f * end, 1}, {0.6f * end, 0.8f}, {end, 0}},
        .breath = Curve{{0, 0.5f}, {0.4f * end, 0.3f}, {end, 0.9f}},
        .rough = chance.between(0.25f, 0.4f),
        .subharmonic = 0.5f};
    constexpr Vowel mouths[] = {vowel::o, vowel::a, vowel::schwa, vowel::u};
    const Vowel& from = mouths[static_cast<int>(chance.unit() * 4) % 4];
    Signal signal = mouth(throat(end, deep, take.chance(1)), from, vowel::schwa, huge, 6);
    signal = levelled(std::move(signal));
    saturate(signal, 2);
    return inRoom(lowPass(std::move(signal), 1300), {0.9f, 1, 1900, 0.35f}, take.side);
}

Signal deathCry(const Take& take) {
    Chance chance = take.chance();
    float end = 0.8f * take.seconds, hz = chance.between(150, 230);
    Signal signal;
    // Two throats that part: something else leaves it.
    for (std::uint32_t n = 0; n < 2; ++n) {
        float low = n == 0 ? 1.0f : 0.53f;
        Throat cry{.hz = Curve{{0, hz * low},
                               {0.15f * end, 1.8f * hz * low},
                               {end, (n == 0 ? 0.4f : 0.75f) * hz * low}},
                   .voiced = Curve{{0, 0}, {0.06f, 1}, {0.5f * end, 0.7f}, {end, 0}},
                   .breath = Curve{{0, 0.3f}, {end, 0.9f}},
                   .rough = 0.3f,
                   .subharmonic = 0.3f};
        add(signal,
            levelled(mouth(throat(end, cry, take.chance(1 + n)), vowel::a, vowel::u, huge, 6)), 0,
            n == 0 ? 1 : 0.6f);
    }
    saturate(signal, 1.7f);
    return inRoom(signal, {1.4f, 1.2f, 2200, 0.5f}, take.side);
}

Signal hiss(const Take& take) {
    Chance chance = take.chance();
    float end = 0.9f * take.seconds, hz = chance.between(2600, 4600),
          bend = chance.between(0.6f, 1.5f);
    Signal noise = bandPass(whiteNoise(end, take.chance(1)),
                            {{0, hz}, {0.5f * end, hz * bend}, {end, hz * 0.7f}}, 1.6f);
    Signal signal = levelled(std::move(noise));
    Signal spit = cloud(end, 130, chance,
                        [&](float) { return crumb(chance.between(1500, 5000), 0.005f, chance); });
    add(signal, levelled(std::move(spit)), 0, 0.5f);
    shape(signal, Curve{{0, 0}, {0.05f, 1}, {0.4f * end, 0.55f}, {0.6f * end, 0.8f}, {end, 0}});
    return inRoom(signal, {0.6f, 0.7f, 5000, 0.25f}, take.side);
}

Signal chomp(const Take& take) {
    Signal signal =
        levelled(strike(material::plate(240, 0.06f, 1, 14, take.chance(1)), 2600, take.chance(2)));
    Chance chance = take.chance(3);
    Curve crunching{{0, 30}, {0.05f, 330}, {0.2f, 180}, {0.36f, 15}};
    Signal bones = cloud(0.36f, crunching, chance, [&](float) {
        return crumb(chance.between(700, 2800), chance.between(0.004f, 0.018f), chance);
    });
    add(signal, levelled(std::move(bones)), 0.01f, 0.8f);
    Signal wet =
        bandPass(brownNoise(0.3f, take.chance(4)), {{0, 260}, {0.15f, 800}, {0.3f, 300}}, 3);
    add(signal, levelled(shaped(std::move(wet), Curve{{0, 0}, {0.1f, 1}, {0.3f, 0}})), 0.06f, 0.6f);
    return inRoom(signal, {0.35f, 0.5f, 2600, 0.2f}, take.side);
}

Signal howl(const Take& take) {
    float end = 0.7f * take.seconds;
    Throat far{.hz = Curve{{0, 130}, {0.3f * end, 290}, {0.7f * end, 270}, {end, 150}},
               .voiced = Curve{{0, 0}, {0.25f * end, 1}, {0.75f * end, 0.8f}, {end, 0}},
               .breath = 0.25f,
               .rough = 0.06f,
               .subharmonic = 0.15f};
    Signal signal = mouth(throat(end, far, take.chance(1)), vowel::u, vowel::o, 0.8f, 8);
    return inRoom(lowPass(levelled(std::move(signal)), 1600), {2.4f, 1.6f, 1400, 0.9f}, take.side);
}
