// The music of the first chapters and of the flight. All music is slow, long and without a seam,
// and the motif is in all of it.

#include "Recipes.h"
#include "Score.h"

// The first chapters: a deep D that breathes, a choir far off, and somebody who tries to remember
// five notes on a piano in another room.
Signal darkAmbience(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-24), take.seconds, 7, take.around(1)), 0.11f);
    score.layUnder(drone(keyHz(-17), take.seconds, 4, take.around(2)), 0.07f);
    score.layWind(420, 0.5f);

    struct Chord {
        float at;
        std::array<float, 3> keys;
    };
    constexpr Chord chords[] = {{4, {-12, -5, 3}},  {20, {-16, -4, 3}}, {36, {-12, -2, 5}},
                                {52, {-17, -9, 2}}, {68, {-12, -5, 1}}, {82, {-12, -5, 3}}};
    for (const Chord& chord : chords) {
        score.playChord(chord.at, 13, chord.keys, vowel::a, 0.16f);
        score.playStrings(chord.at - 2, 16, chord.keys[0] - 12, 420, 0.2f);
    }

    score.playMotif(10, 1.5f, 12, 0.35f, 0.5f, -0.3f);
    score.playPiano(27, 15, 0.2f, 0.3f, 0.4f); // three notes of it, and the rest forgotten
    score.playPiano(28.6f, 14, 0.2f, 0.3f, 0.4f);
    score.playMotif(42, 2, 0, 0.3f, 0.5f, 0.1f);
    score.playPiano(55, -12, 0.6f, 0.4f, 0);
    score.playPiano(60, 8, 0.15f, 0.3f, 0.5f);
    score.playPiano(61.4f, 7, 0.15f, 0.3f, 0.5f);
    score.playMotif(72, 1.7f, 12, 0.25f, 0.42f, 0.3f);
    score.playPiano(88, -12, 0.5f, 0.4f, -0.1f);
    score.playBell(33, -12, 0.16f, -0.6f);
    score.playBell(66, -17, 0.16f, 0.6f);
    return score.heardIn(5, 2400, 0.7f);
}

// Out of the body: nothing below, glass above, and a music box that has the motif backwards and a
// tritone off.
Signal outOfBody(const Take& take) {
    Score score(take);
    score.layUnder(drone(keyHz(-18), take.seconds, 5, take.around(1)), 0.075f);
    score.layUnder(drone(keyHz(-11.5f), take.seconds, 3, take.around(2)), 0.06f);
    score.layWind(880, 0.6f);

    // The box: its spring runs down and is wound again.
    float pace = 0.55f, at = 2;
    for (int turn = 0; turn < 4; ++turn) {
        for (std::size_t n = 0; n < 3 * motif.size(); ++n) {
            float key = motif[motif.size() - 1 - n % motif.size()] + 24 + (n >= 10 ? 6.0f : 0.0f);
            score.playPiano(at, key, 0.1f, 0.16f, turn % 2 == 0 ? -0.7f : 0.7f);
            at += pace;
            pace *= 1.055f;
        }
        pace = 0.55f;
        at += 7;
    }

    for (float start : {6.0f, 30.0f, 54.0f, 78.0f}) {
        score.playGlass(start, 9, 18, 0.12f);
        score.playGlass(start + 5, 9, 19.2f, 0.10f);
        score.playGlass(start + 11, 10, 12.3f, 0.13f);
        score.playStrings(start + 3, 15, -18, 360, 0.2f);
        score.playStrings(start + 3.5f, 15, -17, 360, 0.14f);
        score.playChoir(start + 8, 12, -6, vowel::o, 0.14f);
        score.playChoir(start + 9, 12, 0, vowel::i, 0.1f);
        score.playChoir(start + 10, 12, 1, vowel::i, 0.08f);
    }

    // Far below, the motif as it was, too slow to be known at once.
    score.playMotif(22, 4, -18, 0.5f, 0.5f, 0);
    score.playMotif(70, 4, -18, 0.5f, 0.5f, 0);
    score.playBell(47, -6, 0.14f, 0.4f);
    score.playBell(95, -12, 0.14f, -0.4f);
    return score.heardIn(6, 3000, 0.85f);
}
