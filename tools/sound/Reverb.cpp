#include "Reverb.h"

#include <array>
#include <cmath>

namespace {

constexpr std::size_t lines = 8;

// A feedback network: eight delays whose ends are mixed by a reflection and fed back.
class Network {
public:
    Network(const Room& room, float side) {
        constexpr std::array<float, lines> milliseconds{31.7f, 37.3f, 41.1f, 47.9f,
                                                        53.3f, 61.7f, 68.9f, 79.3f};
        for (std::size_t i = 0; i < lines; ++i) {
            float spread = 1 + 0.03f * side * (i % 2 == 0 ? 1.0f : -1.0f);
            float seconds = milliseconds[i] * 0.001f * room.size * spread;
            delays[i].assign(static_cast<std::size_t>(framesOf(seconds)) + 1, 0.0f);
            feedback[i] = std::pow(0.001f, seconds / room.seconds);
        }
        absorb = 1 - std::exp(-twoPi * room.bright / samplesPerSecond);
    }

    float step(float input) {
        float sum = 0, out = 0;
        std::array<float, lines> ends;
        for (std::size_t i = 0; i < lines; ++i) {
            dull[i] += absorb * (delays[i][at[i]] * feedback[i] - dull[i]);
            ends[i] = dull[i];
            sum += ends[i];
            out += i % 3 == 0 ? -ends[i] : ends[i];
        }
        for (std::size_t i = 0; i < lines; ++i) {
            delays[i][at[i]] = ends[i] - sum * (2.0f / lines) + input;
            at[i] = at[i] + 1 == delays[i].size() ? 0 : at[i] + 1;
        }
        return out;
    }

private:
    std::array<std::vector<float>, lines> delays;
    std::array<std::size_t, lines> at{};
    std::array<float, lines> feedback{}, dull{};
    float absorb;
};

} // namespace

Signal inRoom(const Signal& dry, const Room& room, float side) {
    Signal signal = dry;
    signal.resize(dry.size() + static_cast<std::size_t>(framesOf(room.seconds)));
    Network network(room, side);
    for (float& sample : signal) {
        sample += room.wet * 0.35f * network.step(sample);
    }
    return signal;
}
