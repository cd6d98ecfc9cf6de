// The music of the far side, of the ghost and of the end.

#include "Grains.h"
#include "Recipes.h"
#include "Score.h"

namespace {

// One who sings so low that his throat rattles: an octave below what he means.
Signal monk(float hz, float seconds, Chance chance) {
    Throat low{.hz = Curve{{0, 0.97f * hz}, {0.2f * seconds, hz}, {seconds, 0.98f * hz}},
               .voiced = Curve{{0, 0}, {0.25f * seconds, 1}, {0.7f * seconds, 0.8f}, {seconds, 0}},
               .breath = 0.12f,
               .rough = 0.03f,
               .subharmonic = 0.55f};
    return mouth(throat(seconds, low, chance), vowel::o, vowel::e, 0.85f, 11);
}

// Drums and bones, once around the ring.
void beatRound(Score& score, float at, float turn, float strong) {
    score.playDrum(at, 61, 1.1f * strong, 0);
    score.playDrum(at + 0.9f, 61, 0.65f * strong, 0.1f);
    score.playDrum(at + turn / 2, 82, 0.75f * strong, -0.3f);
    score.playDrum(at + turn - 0.75f, 98, 0.45f * strong, 0.5f);
    for (float late : {2.7f, 3.1f, 7.2f}) { // bones
        score.playStruck(at + late, material::bar(late > 3 ? 690.0f : 810.0f, 0.16f, 1.4f), 2600,
                         0.09f * strong, late > 3 ? 0.8f : -0.8f);
    }
}

// A few splinters of ice.
Signal splinters(float seconds, float many, Chance chance) {
    return cloud(seconds, Curve{{0, many}, {seconds, 1}}, chance, [&](float) {
        Chance own(static_cast<std::uint32_t>(chance.unit() * 1e6f));
        return strike(material::bar(chance.between(1900, 5200), 0.3f, 0.4f), 8000, own);
    });
}

// What drives the fight: six even strokes a bar, the first notes of the motif among them.
class Engine {
public:
    explicit Engine(Score& the) : score(the) {
        for (std::size_t n = 0; n < keys.size(); ++n) {
            strokes[n] = strings(keyHz(keys[n]), 0.62f, 3, 0, 760, score.apart());
            add(strokes[n], strings(keyHz(keys[n] + 12), 0.5f, 2, 0, 1100, score.apart()), 0, 0.5f);
        }
    }

    static constexpr float beat = 0.4f, bar = 6 * beat;

    void play(float at, float level) {
        constexpr std::array<std::size_t, 6> pattern{0, 0, 2, 1, 0, 3};
        for (std::size_t n = 0; n < pattern.size(); ++n) {
            float accent = n % 3 == 0 ? 1.0f : 0.62f;
            score.play(at + static_cast<float>(n) * beat, strokes[pattern[n]], accent * level,
                       n % 2 == 0 ? -0.2f : 0.2f);
        }
    }

private:
    static constexpr std::array<float, 4> keys{-20, -18, -17, -19};
    Score& score;
    std::array<Signal, 4> strokes;
};

// The pulse of the fight: it drives, stops for six bars, and drives on.
void pursue(Score& score, int bars) {
    Engine engine(score);
    const Curve drive{{0, 0.5f}, {10, 0.8f}, {19, 1}, {20, 0},
                      {25, 0},   {26, 1},    {34, 1}, {40, 0.5f}};
    for (int n = 0; n < bars; ++n) {
        float at = static_cast<float>(n) * Engine::bar, strong = drive(static_cast<float>(n));
        score.playDrum(at, 56, 0.2f + 0.22f * strong, 0);
        if (strong > 0) {
            engine.play(at, 0.3f * strong);
            score.playDrum(at + 3 * Engine::beat, 78, 0.26f * strong, 0.3f);
            score.playDrum(at + 5 * Engine::beat, 78, 0.16f * strong, -0.3f);
        }
        if (n % 4 == 2) {
            score.play(at + 0.8f, splinters(2.2f, 14, score.own()), 0.12f,
                       n % 8 == 2 ? 0.8f : -0.8f);
        }
    }
}

// What the motif lacked: its mirror image, which ends on the third of a major chord.
constexpr std::array<float, 5> mirror{0, -3, -2, 5, 4};

constexpr float verse = 26;        // seconds of the motif and its mirror together
constexpr float pace = verse / 14; // of both, seconds a note

struct Harmony {
    float at, length; // in notes of the verse
    float bass;
    std::array<float, 3> keys;
};
constexpr Harmony harmonies[] = {{0, 2, -16, {-4, 0, 3}},      {2, 1.6f, -14, {-7, -2, 2}},
                                 {3.6f, 1, -21, {-9, -5, 3}},  {4.6f, 2.4f, -19, {-7, -4, 0}},
                                 {7, 2, -19, {-7, -3, 0}},     {9, 1.6f, -17, {-5, -2, 2}},
                                 {10.6f, 1, -14, {-7, -2, 5}}, {11.6f, 2.4f, -24, {-12, -5, 4}}};

} // namespace

// The far side: they sit in a ring, and have been waiting. A drum, a chant, and an answer that
// everybody knows.
Signal farSide(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-26), take.seconds, 5, take.around(1)), 0.045f);
    score.layUnder(drone(keyHz(-19.1f), take.seconds, 3, take.around(2)), 0.04f);
    constexpr int rounds = 12;
    constexpr float first = 0.8f; // no blow falls into the seam
    constexpr float growth[] = {0.35f, 0.4f, 0.5f, 0.55f, 0.7f,  0.8f,
                                0.9f,  1,    1,    0.7f,  0.45f, 0.35f};
    float turn = take.seconds / rounds;
    for (int n = 0; n < rounds; ++n) {
        float at = first + static_cast<float>(n) * turn, strong = growth[n];
        beatRound(score, at, turn, strong);
        score.playStrings(at, turn + 3, n % 4 == 3 ? -25 : -26, 420, 0.15f);
        if (n % 2 == 0) {
            score.play(at + 1, monk(keyHz(-14), 8, score.own()), 0.2f * strong, -0.5f);
            score.play(at + 4.5f, monk(keyHz(-13), 6, score.own()), 0.15f * strong, 0.6f);
            for (int syllable = 0; syllable < 6; ++syllable) {
                score.playChoir(at + 1.4f + 1.1f * static_cast<float>(syllable), 1.9f,
                                syllable == 5 ? -13 : -14, syllable % 2 == 0 ? vowel::o : vowel::a,
                                0.24f * strong);
            }
        } else {
            score.tellMotif(at, 1.6f, -14, [&](float when, float key) {
                score.playChoir(when - 0.3f, 3.2f, key, vowel::a, 0.24f * strong);
                score.playChoir(when - 0.3f, 3.2f, key + 7, vowel::o, 0.17f * strong);
            });
        }
    }
    for (float at : {0.0f, 27.0f, 54.0f, 63.0f, 72.0f, 81.0f}) {
        score.playBell(first + at, -2, 0.06f, at > 60 ? 0.4f : -0.4f);
        score.playPiano(first + at, -14, 0.9f, 0.24f, 0);
    }
    return score.heardIn(6.5f, 1500, 0.85f);
}

// The ghost: ice over a pulse that does not let go. In the middle it holds its breath.
Signal frost(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-20), take.seconds, 4, take.around(1)), 0.035f);
    score.layUnder(drone(keyHz(22.06f), take.seconds, 1, take.around(2)), 0.006f);
    score.layWind(1700, 0.3f);

    constexpr float bar = Engine::bar;
    pursue(score, static_cast<int>(std::lround(take.seconds / bar)));

    auto wail = [&](float at, float key) {
        score.playStrings(at - 0.2f, 2.6f, key, 1500, 0.17f);
        score.playChoir(at - 0.2f, 2.6f, key + 12, vowel::i, 0.12f);
    };
    auto ice = [&](float at, float key) {
        score.playStruck(at, material::bar(keyHz(key), 2.2f, 0.3f), 6000, 0.12f, 0.5f);
        score.playGlass(at - 0.3f, 3, key - 12, 0.14f);
    };
    score.tellMotif(6 * bar, 2 * bar / 3, 28, ice);
    score.tellMotif(12 * bar, 2 * bar / 3, -8, wail);
    score.tellMotif(16 * bar, 2 * bar / 3, -7, wail);
    score.tellMotif(21 * bar, bar / 2, 28, ice);
    score.tellMotif(27 * bar, 2 * bar / 3, -8, wail);
    score.tellMotif(31 * bar, 2 * bar / 3, -4, wail);
    score.tellMotif(36 * bar, 2 * bar / 3, 16, ice);
    score.tellMotif(27 * bar, 4 * bar / 3, -20,
                    [&](float at, float key) { score.playPiano(at, key, 1, 0.5f, 0); });
    for (float at : {0.0f, 10 * bar, 20 * bar, 26 * bar}) {
        score.playBell(at, -20, 0.1f, -0.3f);
        score.playChord(at, 6 * bar, {4, 5, 11}, vowel::i, 0.07f);
    }
    return score.heardIn(3.2f, 4200, 0.55f);
}

// The end: the piano of the other room has remembered the rest, and all who were met on the way
// sing along.
Signal lamps(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-12), take.seconds, 3, take.around(1)), 0.05f);
    score.layWind(520, 0.25f);
    constexpr float bows[] = {0.08f, 0.16f, 0.24f, 0.14f}, voices[] = {0, 0, 0.18f, 0};
    for (std::size_t n = 0; n < std::size(bows); ++n) {
        float from = static_cast<float>(n) * verse;
        for (const Harmony& h : harmonies) {
            float at = from + h.at * pace, held = h.length * pace + 3;
            score.playStrings(at - 0.7f, held, h.bass + 12, 560, bows[n]);
            score.playStrings(at - 0.7f, held, h.keys[2], 800, 0.6f * bows[n]);
            score.playPiano(at, h.bass, 0.3f, n == 0 ? 0.2f : 0.36f, -0.2f);
            if (n == 1) {
                score.playPiano(at + 1, h.keys[1], 0.2f, 0.22f, 0.1f);
            }
            if (voices[n] > 0) {
                score.playChord(at - 0.5f, held, h.keys, vowel::a, voices[n]);
            }
        }
        // Alone, then with the brass of the machine, then with everybody, then from afar.
        auto hand = [&](float at, float key) {
            score.playPiano(at, key + 12, 0.35f, 0.36f, -0.2f);
            if (n == 1 || n == 3) {
                score.playStruck(at, material::bar(keyHz(key + 24), 2.6f, 0.5f), 3000, 0.09f, 0.4f);
            }
            if (n == 2) {
                score.playPiano(at, key, 0.5f, 0.4f, 0.2f);
                score.playStrings(at - 0.5f, 4, key, 1200, 0.16f);
                score.playChoir(at - 0.4f, 4, key + 12, vowel::a, 0.16f);
            }
        };
        score.tellMotif(from + 0.1f, pace, 0, hand);
        score.tell(mirror, from + verse / 2, pace, 0, hand);
    }
    score.playGlass(18, 10, 16, 0.1f);
    score.playGlass(46, 8, 18, 0.1f);
    score.playGlass(97, 10, 16, 0.1f);
    score.playBell(2 * verse, -12, 0.15f, -0.4f);
    score.playBell(2.5f * verse, -7, 0.13f, 0.4f);
    score.playBell(2 * verse + 11.6f * pace, -12, 0.15f, 0);
    return score.heardIn(4.5f, 3000, 0.65f);
}
