#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

/// A value that moves over time, given by its corners and smooth between them; before the first
/// and after the last corner it stands still.
class Curve {
public:
    struct Corner {
        float at, value; // seconds, any unit
    };

    Curve(float still) : corners{{0, still}} {}
    Curve(std::initializer_list<Corner> list) : corners(list) {}

    float operator()(float t) const {
        auto next = std::ranges::upper_bound(corners, t, {}, &Corner::at);
        if (next == corners.begin()) {
            return corners.front().value;
        }
        if (next == corners.end()) {
            return corners.back().value;
        }
        const Corner& last = *(next - 1);
        float x = (t - last.at) / (next->at - last.at);
        return last.value + (next->value - last.value) * x * x * (3 - 2 * x);
    }

private:
    std::vector<Corner> corners;
};

/// The strength of something that fades by 60 decibels in the given time.
inline float fading(float t, float seconds) {
    return std::exp(-6.9078f * t / seconds);
}
