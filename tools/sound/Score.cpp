#include "Score.h"

#include "Filter.h"
#include "Reverb.h"

void Score::playMotif(float at, float pace, float key, float touch, float level, float place) {
    tellMotif(at, pace, key,
              [&](float when, float note) { playPiano(when, note, touch, level, place); });
}

void Score::playPiano(float at, float key, float touch, float level, float place) {
    play(at, piano(keyHz(key), 6, touch, own()), level, place);
}

void Score::playChoir(float at, float seconds, float key, const Vowel& to, float level) {
    play(at, choir(keyHz(key), seconds, 4, vowel::u, to, apart()), level);
}

void Score::playChord(float at, float seconds, const std::array<float, 3>& keys, const Vowel& to,
                      float level) {
    for (float key : keys) {
        playChoir(at, seconds, key, to, level);
    }
}

void Score::playStrings(float at, float seconds, float key, float bright, float level) {
    play(at, strings(keyHz(key), seconds, 3, 0, bright, apart()), level);
}

void Score::playGlass(float at, float seconds, float key, float level) {
    play(at, bowedGlass(keyHz(key), seconds, apart()), level);
}

void Score::playBell(float at, float key, float level, float place) {
    playStruck(at, material::bell(keyHz(key), 7), 1400, level, place);
}

void Score::playDrum(float at, float hz, float level, float place) {
    play(at, drum(hz, own()), level, place);
}

void Score::playStruck(float at, const Modes& modes, float hardness, float level, float place) {
    play(at, strike(modes, hardness, own()), level, place);
}

void Score::layWind(float hz, float level) {
    // As many gusts as fit; each swells and fades, so that their chain has no seam.
    Chance gusts = own();
    constexpr float pause = 4, length = 10;
    for (float at = 0; at < take.seconds; at += pause) {
        float centre = hz * gusts.between(0.7f, 1.5f);
        Chance air = apart();
        Signal gust = bandPass(pinkNoise(length, air),
                               {{0, centre}, {length, centre * gusts.between(0.7f, 1.4f)}}, 5);
        shape(gust, Curve{{0, 0}, {0.45f * length, 1}, {length, 0}});
        add(sheet, gust, at, level * gusts.between(0.4f, 1));
    }
}

Signal Score::heardIn(float seconds, float bright, float wet) const {
    return inRoom(sheet, {seconds, 1.7f, bright, wet}, take.side);
}
