#pragma once

#include "Instruments.h"
#include "Modal.h"
#include "Take.h"

#include <array>

/// The five notes that return in every piece, in semitones from its key note.
inline constexpr std::array<float, 5> motif{0, 3, 2, -5, -4};

/// A piece of music that is written down note by note and goes round: what sounds on after the end
/// sounds on at the start.
class Score {
public:
    explicit Score(const Take& the) : take(the), sheet(silence(the.seconds)) {}

    /// Plays the motif from a place in the piece, `pace` seconds a note, `key` semitones from D, on
    /// whatever `note(at, key)` plays.
    template <class Note>
    void tellMotif(float at, float pace, float key, const Note& note) {
        tell(motif, at, pace, key, note);
    }

    /// Plays other notes in the way of the motif: a hand that is not in a hurry, and not quite
    /// sure.
    template <class Note>
    void tell(const std::array<float, 5>& melody, float at, float pace, float key,
              const Note& note) {
        for (std::size_t n = 0; n < melody.size(); ++n) {
            note(at + own().between(0, 0.06f), key + melody[n]);
            at += pace * (n == 2 ? 1.6f : 1);
        }
    }

    /// The motif on the piano.
    void playMotif(float at, float pace, float key, float touch, float level, float place);

    void playPiano(float at, float key, float touch, float level, float place);
    void playChoir(float at, float seconds, float key, const Vowel& to, float level);
    void playChord(float at, float seconds, const std::array<float, 3>& keys, const Vowel& to,
                   float level); // of the choir
    void playStrings(float at, float seconds, float key, float bright, float level);
    void playGlass(float at, float seconds, float key, float level);
    void playBell(float at, float key, float level, float place);
    void playDrum(float at, float hz, float level, float place);
    void playStruck(float at, const Modes& modes, float hardness, float level, float place);

    /// Whatever else is heard, from a place between the ears. What begins before the piece does
    /// begins near its end.
    void play(float at, const Signal& sound, float level, float place = 0) {
        add(sheet, sound, at < 0 ? at + take.seconds : at, level * take.heardFrom(place));
    }

    /// Lies under the whole piece.
    void layUnder(const Signal& layer, float level) { add(sheet, layer, 0, level); }

    /// Wind that goes round with the piece, about a frequency that wanders.
    void layWind(float hz, float level);

    /// Chance for the next note, alike on both sides or one for each.
    Chance own() { return take.chance(1000 + ++notes); }
    Chance apart() { return take.around(1000 + ++notes); }

    /// The whole piece, heard in a hall.
    Signal heardIn(float seconds, float bright, float wet) const;

private:
    Take take;
    Signal sheet;
    std::uint32_t notes = 0;
};
