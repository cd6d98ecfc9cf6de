#pragma once

#include "Curve.h"
#include "Signal.h"

#include <array>

/// The three lowest resonances of a mouth, in hertz.
using Vowel = std::array<float, 3>;

namespace vowel {
inline constexpr Vowel a{800, 1150, 2900};
inline constexpr Vowel e{420, 1900, 2650};
inline constexpr Vowel i{290, 2250, 3000};
inline constexpr Vowel o{450, 800, 2800};
inline constexpr Vowel u{325, 700, 2600};
inline constexpr Vowel schwa{520, 1450, 2450};
} // namespace vowel

/// A throat: what the vocal cords and the breath give before the mouth shapes it.
struct Throat {
    Curve hz = 100;
    Curve voiced = 1;      // strength of the cords
    Curve breath = 0.1f;   // strength of the air
    float rough = 0.02f;   // how unevenly the cords beat; 0.3 is a growl
    float subharmonic = 0; // how much every second beat differs; 1 drops an octave
};

Signal throat(float seconds, const Throat& throat, Chance chance);

/// The mouth moves from one vowel to the other; `size` 1 is a grown person, 2 a mouth of half the
/// size, 0.5 a beast.
Signal mouth(const Signal& source, const Vowel& from, const Vowel& to, float size, float q = 9);
