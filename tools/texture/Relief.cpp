#include "Relief.h"

#include "Shape.h"

#include <cmath>

Relief::Relief(int width, int height)
    : columns(width),
      rows(height),
      heights(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0.0f) {}

std::size_t Relief::index(int x, int y) const {
    x = (x + columns) % columns;
    y = (y + rows) % rows;
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
           static_cast<std::size_t>(x);
}

Colour Relief::lit(int x, int y, Colour surface) const {
    float dx = 0.5f * (at(x + 1, y) - at(x - 1, y));
    float dy = 0.5f * (at(x, y + 1) - at(x, y - 1));
    float length = std::sqrt(dx * dx + dy * dy + 1);
    // The light stands at (-0.35, 0.70, 0.62): flat ground gets 0.62 of it and counts as 1.
    float light = std::max(0.0f, (0.35f * dx - 0.70f * dy + 0.62f) / length) / 0.62f;
    float rim = shape::ramp(0.35f, 1.0f, -dy / length);
    float hollow = shape::clamp01(-0.16f * prominence(x, y));
    float crest = shape::clamp01(0.05f * prominence(x, y));
    float shade = (0.30f + 0.70f * light) * (1 - 0.75f * hollow) * (1 + crest);
    return surface * shade + palette::moonlight * (0.16f * rim);
}

// Three passes of a sliding mean, along rows and then along columns, come close to a Gaussian.
std::vector<float> Relief::blurred(int radius) const {
    std::vector<float> from = heights, to = heights;
    float share = 1.0f / static_cast<float>(2 * radius + 1);
    for (int pass = 0; pass < 6; ++pass) {
        int stepX = pass % 2 == 0 ? 1 : 0, stepY = 1 - stepX;
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < columns; ++x) {
                float sum = 0;
                for (int i = -radius; i <= radius; ++i) {
                    sum += from[index(x + i * stepX, y + i * stepY)];
                }
                to[index(x, y)] = sum * share;
            }
        }
        from.swap(to);
    }
    return from;
}
