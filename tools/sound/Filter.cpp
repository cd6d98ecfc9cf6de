#include "Filter.h"

#include <algorithm>
#include <cmath>

void Filter::tune(float hz, float q) {
    float g = std::tan(twoPi / 2 * std::clamp(hz, 5.0f, 20000.0f) / samplesPerSecond);
    damping = 1 / q;
    a1 = 1 / (1 + g * (g + damping));
    a2 = g * a1;
    a3 = g * a2;
}

void Filter::step(float input) {
    float rest = input - second;
    float b = a1 * first + a2 * rest;
    low = second + a2 * first + a3 * rest;
    first = 2 * b - first;
    second = 2 * low - second;
    band = damping * b;
    high = input - band - low;
}

namespace {

Signal filtered(Signal signal, const Curve& hz, float q, float Filter::*output) {
    constexpr std::size_t samplesPerTuning = 32;
    Filter filter(hz(0), q);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        if (i % samplesPerTuning == 0) {
            filter.tune(hz(static_cast<float>(i) / samplesPerSecond), q);
        }
        filter.step(signal[i]);
        signal[i] = filter.*output;
    }
    return signal;
}

} // namespace

Signal lowPass(Signal signal, const Curve& hz, float q) {
    return filtered(std::move(signal), hz, q, &Filter::low);
}

Signal highPass(Signal signal, const Curve& hz, float q) {
    return filtered(std::move(signal), hz, q, &Filter::high);
}

Signal bandPass(Signal signal, const Curve& hz, float q) {
    return filtered(std::move(signal), hz, q, &Filter::band);
}
