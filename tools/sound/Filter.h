#pragma once

#include "Curve.h"
#include "Signal.h"

/// A filter of two poles that gives its three outputs at once and may be retuned while it runs.
class Filter {
public:
    Filter(float hz, float q) { tune(hz, q); }

    /// `q` is the sharpness at the cutoff: 0.7 is flat, 10 rings.
    void tune(float hz, float q);
    void step(float input);

    float low = 0;
    float band = 0; // as strong at the centre as the input was
    float high = 0;

private:
    float damping = 1, a1 = 0, a2 = 0, a3 = 0, first = 0, second = 0;
};

Signal lowPass(Signal signal, const Curve& hz, float q = 0.7f);
Signal highPass(Signal signal, const Curve& hz, float q = 0.7f);
Signal bandPass(Signal signal, const Curve& hz, float q);
