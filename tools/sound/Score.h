#pragma once

#include "Instruments.h"
#include "Take.h"

#include <array>

/// The five notes that return in every piece, in semitones from its key note.
inline constexpr std::array<float, 5> motif{0, 3, 2, -5, -4};

/// A piece of music that is written down note by note and goes round: what sounds on after the end
/// sounds on at the start.
class Score {
public:
    explicit Score(const Take& the) : take(the), sheet(silence(the.seconds)) {}

    /// Plays the motif from a place in the piece, `pace` seconds a note, `key` semitones from D.
    void playMotif(float at, float pace, float key, float touch, float level, float place);

    void playPiano(float at, float key, float touch, float level, float place);
    void playChoir(float at, float seconds, float key, const Vowel& to, float level);
    void playStrings(float at, float seconds, float key, float bright, float level);
    void playGlass(float at, float seconds, float key, float level);
    void playBell(float at, float key, float level, float place);

    /// Lies under the whole piece.
    void layUnder(const Signal& layer, float level) { add(sheet, layer, 0, level); }

    /// Wind that goes round with the piece, about a frequency that wanders.
    void layWind(float hz, float level);

    /// The whole piece, heard in a hall.
    Signal heardIn(float seconds, float bright, float wet) const;

private:
    Chance own() { return take.chance(1000 + ++notes); }

    Take take;
    Signal sheet;
    std::uint32_t notes = 0;
};
