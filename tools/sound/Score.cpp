#include "Score.h"

#include "Filter.h"
#include "Modal.h"
#include "Reverb.h"

void Score::playMotif(float at, float pace, float key, float touch, float level, float place) {
    for (std::size_t n = 0; n < motif.size(); ++n) {
        // A hand that is not in a hurry, and not quite sure.
        Chance hand = own();
        playPiano(at + hand.between(0, 0.06f), key + motif[n], touch, level, place);
        at += pace * (n == 2 ? 1.6f : 1);
    }
}

void Score::playPiano(float at, float key, float touch, float level, float place) {
    add(sheet, piano(keyHz(key), 6, touch, own()), at, level * take.heardFrom(place));
}

void Score::playChoir(float at, float seconds, float key, const Vowel& to, float level) {
    Chance singers = take.around(1000 + ++notes); // each side has singers of its own
    add(sheet, choir(keyHz(key), seconds, 4, vowel::u, to, singers), at, level);
}

void Score::playStrings(float at, float seconds, float key, float bright, float level) {
    Chance players = take.around(1000 + ++notes);
    add(sheet, strings(keyHz(key), seconds, 3, 0, bright, players), at, level);
}

void Score::playGlass(float at, float seconds, float key, float level) {
    Chance player = take.around(1000 + ++notes);
    add(sheet, bowedGlass(keyHz(key), seconds, player), at, level);
}

void Score::playBell(float at, float key, float level, float place) {
    add(sheet, strike(material::bell(keyHz(key), 7), 1400, own()), at,
        level * take.heardFrom(place));
}

void Score::layWind(float hz, float level) {
    // As many gusts as fit; each swells and fades, so that their chain has no seam.
    Chance gusts = take.chance(1000 + ++notes);
    constexpr float pause = 4, length = 10;
    for (float at = 0; at < take.seconds; at += pause) {
        float centre = hz * gusts.between(0.7f, 1.5f);
        Chance air = take.around(1000 + ++notes);
        Signal gust = bandPass(pinkNoise(length, air),
                               {{0, centre}, {length, centre * gusts.between(0.7f, 1.4f)}}, 5);
        shape(gust, Curve{{0, 0}, {0.45f * length, 1}, {length, 0}});
        add(sheet, gust, at, level * gusts.between(0.4f, 1));
    }
}

Signal Score::heardIn(float seconds, float bright, float wet) const {
    return inRoom(sheet, {seconds, 1.7f, bright, wet}, take.side);
}
