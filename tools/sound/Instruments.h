#pragma once

#include "Curve.h"
#include "Signal.h"
#include "Voice.h"

/// What the music and the large sounds of dread are played on.

/// The frequency of a key, in semitones from the D below middle C.
float keyHz(float semitones);

/// A piano that nobody has tuned for long. `touch` 0 is the softest, 1 the hardest.
Signal piano(float hz, float seconds, float touch, Chance chance);

/// Low strings, `players` of them, none quite together. The pitch moves by `glide`, in semitones.
Signal strings(float hz, float seconds, int players, const Curve& glide, float bright,
               Chance chance);

/// Far voices that sing from one vowel to another.
Signal choir(float hz, float seconds, int singers, const Vowel& from, const Vowel& to,
             Chance chance);

/// A glass or a saw, bowed: pure tones that swell, beat and fade.
Signal bowedGlass(float hz, float seconds, Chance chance);

/// A tone of partials that come and go, each a whole number of times in `seconds`, so that its end
/// meets its start.
Signal drone(float hz, float seconds, int partials, Chance chance);

/// A drum the size of a room.
Signal drum(float hz, Chance chance);
