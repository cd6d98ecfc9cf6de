// The small one's own body: breath, voice, throat and heart.

#include "Filter.h"
#include "Grains.h"
#include "Recipes.h"
#include "Reverb.h"
#include "Voice.h"

namespace {

constexpr float small = 1.45f; // the mouth of somebody little

// Air alone, in or out.
Signal air(float seconds, const Vowel& from, const Vowel& to, const Curve& strength,
           Chance chance) {
    Throat still{.hz = 200, .voiced = 0, .breath = strength};
    return mouth(throat(seconds, still, chance), from, to, small, 4);
}

} // namespace

Signal gasp(const Take& take) {
    // Out of the water: the water flies off, the breath tears in, and goes.
    Signal signal = levelled(air(0.55f, vowel::u, vowel::a,
                                 {{0, 0}, {0.3f, 0.7f}, {0.48f, 1}, {0.55f, 0}}, take.chance(1)));
    Throat wheeze{.hz = Curve{{0, 320}, {0.5f, 520}},
                  .voiced = Curve{{0, 0}, {0.25f, 0.5f}, {0.5f, 0}},
                  .breath = 0.3f,
                  .rough = 0.2f};
    add(signal, levelled(mouth(throat(0.5f, wheeze, take.chance(2)), vowel::o, vowel::a, small)),
        0.03f, 0.35f);
    Signal out = air(0.7f, vowel::a, vowel::schwa, {{0, 0}, {0.12f, 1}, {0.7f, 0}}, take.chance(3));
    add(signal, levelled(std::move(out)), 0.62f, 0.6f);
    Chance drops = take.chance(4);
    add(signal,
        cloud(0.9f, 22, drops,
              [&](float) { return bubble(drops.between(900, 2600), 0.4f, drops); }),
        0, 0.12f);
    return inRoom(signal, {0.5f, 0.6f, 3500, 0.2f}, take.side);
}

Signal fearfulBreath(const Take& take) {
    // In and out through a half-closed mouth, and the shiver of one who tries not to be heard.
    Chance chance = take.chance();
    float in = chance.between(0.35f, 0.5f) * take.seconds, out = take.seconds - in - 0.06f;
    float shiver = chance.between(6, 11), shaken = chance.between(0.1f, 0.5f);
    constexpr Vowel mouths[] = {vowel::schwa, vowel::e, vowel::o, vowel::u, vowel::i};
    const Vowel& shut = mouths[static_cast<int>(chance.unit() * 5) % 5];
    Signal signal =
        levelled(air(in, shut, vowel::schwa, {{0, 0}, {0.75f * in, 1}, {in, 0}}, take.chance(1)));
    Signal outward = air(out, vowel::a, shut, {{0, 0}, {0.25f * out, 1}, {out, 0}}, take.chance(2));
    add(signal, levelled(lowPass(std::move(outward), 3800)), in + 0.06f,
        chance.between(0.6f, 0.95f));
    shape(signal,
          [&](float t) { return 1 - shaken * (0.5f + 0.5f * std::sin(twoPi * shiver * t)); });
    return inRoom(signal, {0.4f, 0.4f, 3000, 0.12f}, take.side);
}

Signal grunt(const Take& take) {
    Chance chance = take.chance();
    float hz = chance.between(215, 270), seconds = chance.between(0.24f, 0.32f);
    Throat pain{.hz = Curve{{0, hz * 0.9f}, {0.05f, hz * 1.25f}, {seconds, hz * 0.7f}},
                .voiced = Curve{{0, 0}, {0.025f, 1}, {0.6f * seconds, 0.7f}, {seconds, 0}},
                .breath = Curve{{0, 0.9f}, {0.05f, 0.25f}, {seconds, 0.5f}},
                .rough = chance.between(0.08f, 0.16f)};
    const Vowel& start = chance.unit() < 0.5f ? vowel::schwa : vowel::o;
    return inRoom(mouth(throat(seconds, pain, take.chance(1)), start, vowel::u, small, 7),
                  {0.4f, 0.5f, 2800, 0.2f}, take.side);
}

Signal dying(const Take& take) {
    Chance chance = take.chance();
    float hz = chance.between(260, 330), cry = 0.62f * take.seconds;
    Throat last{.hz =
                    Curve{{0, hz}, {0.12f, hz * 1.3f}, {0.5f * cry, hz * 0.9f}, {cry, hz * 0.45f}},
                .voiced = Curve{{0, 0}, {0.05f, 1}, {0.5f * cry, 0.7f}, {cry, 0}},
                .breath = Curve{{0, 0.5f}, {0.3f, 0.2f}, {cry, 0.8f}},
                .rough = chance.between(0.12f, 0.22f),
                .subharmonic = 0.35f};
    Signal signal =
        levelled(mouth(throat(cry, last, take.chance(1)), vowel::a, vowel::o, small, 7));
    Signal leaving = air(take.seconds - cry, vowel::schwa, vowel::u,
                         {{0, 0.4f}, {0.15f, 1}, {0.38f * take.seconds, 0}}, take.chance(2));
    add(signal, levelled(std::move(leaving)), cry - 0.1f, 0.4f);
    return inRoom(signal, {0.9f, 0.8f, 2600, 0.3f}, take.side);
}

Signal gulp(const Take& take) {
    Chance chance = take.chance();
    Signal signal = bubble(chance.between(150, 210), 1.2f, chance);
    add(signal, bubble(chance.between(280, 360), 0.9f, chance), chance.between(0.1f, 0.15f), 0.8f);
    Signal throatful =
        lowPass(brownNoise(0.35f, take.chance(1)), {{0, 260}, {0.12f, 900}, {0.35f, 240}}, 4);
    shape(throatful, Curve{{0, 0}, {0.06f, 1}, {0.14f, 0.3f}, {0.2f, 0.8f}, {0.35f, 0}});
    add(signal, levelled(std::move(throatful)), 0, 0.6f);
    for (int n = 0; n < 4; ++n) {
        add(signal, bubble(chance.between(420, 1100), 0.6f, chance), chance.between(0.2f, 0.4f),
            0.35f);
    }
    return lowPass(std::move(signal), 2200);
}

Signal drowning(const Take& take) {
    // A cry that the water keeps, then the last air on its way up.
    Throat cry{.hz = Curve{{0, 300}, {0.3f, 380}, {1.1f, 170}},
               .voiced = Curve{{0, 0}, {0.15f, 1}, {1.1f, 0}},
               .breath = 0.3f,
               .rough = 0.2f};
    Signal signal =
        lowPass(mouth(throat(1.1f, cry, take.chance(1)), vowel::o, vowel::u, small), 650);
    signal = levelled(std::move(signal));
    Chance chance = take.chance(2);
    Curve density{{0, 18}, {0.5f, 60}, {1.2f, 28}, {take.seconds, 2}};
    Signal bubbles = cloud(take.seconds - 0.2f, density, chance, [&](float t) {
        return bubble(chance.between(140, 520) * (1 + 0.5f * t), chance.between(0.4f, 1), chance);
    });
    add(signal, levelled(std::move(bubbles)), 0.1f, 1);
    return inRoom(signal, {0.8f, 0.5f, 900, 0.3f}, take.side);
}

Signal heartbeat(const Take& take) {
    // Two valves a beat, heard through flesh; the muscle never does the same twice.
    Signal signal = silence(take.seconds);
    Chance chance = take.chance();
    auto valve = [&](float at, float hz, float level) {
        Signal beat = silence(0.22f);
        float phase = 0;
        for (std::size_t i = 0; i < beat.size(); ++i) {
            float t = static_cast<float>(i) / samplesPerSecond;
            phase += hz * (1 + 0.6f * fading(t, 0.09f)) / samplesPerSecond;
            beat[i] = std::sin(twoPi * phase) * std::min(1.0f, t * 120) * fading(t, 0.17f);
        }
        Signal flesh = lowPass(
            brownNoise(0.18f, Chance(static_cast<std::uint32_t>(chance.unit() * 1e6f))), 190);
        add(beat,
            shaped(std::move(flesh),
                   [](float t) { return std::min(1.0f, t * 150) * fading(t, 0.12f); }),
            0, 0.8f);
        add(signal, beat, at, level);
    };
    for (float at = 0.05f; at < take.seconds - 0.5f; at += 1) {
        valve(at + 0.01f * chance.unit(), chance.between(44, 47), 1);
        valve(at + chance.between(0.27f, 0.29f), chance.between(58, 62), 0.62f);
    }
    saturate(signal, 1.2f);
    return signal;
}
