#pragma once

#include "Clip.h"

/// What can be said of a sound in numbers; of several channels, the worst.
struct Measures {
    float seconds = 0;
    float peak = 0;        // 1 is full scale
    float loudness = 0;    // root of the mean square
    float offset = 0;      // the mean
    float ends = 0;        // the louder of the first and the last sample
    float seam = 0;        // the step from the last sample to the first
    float largestStep = 0; // between neighbours
    float quietest = 0;    // loudness of the quietest tenth of a second
    float centroid = 0;    // hertz: the middle of the spectrum
};

Measures measure(const Clip& clip);
