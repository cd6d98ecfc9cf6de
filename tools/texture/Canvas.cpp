#include "Canvas.h"

#include <algorithm>
#include <cmath>
#include <fstream>

Canvas::Canvas(int width, int height)
    : columns(width),
      rows(height),
      pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), {0, 0, 0, 0}) {}

void Canvas::over(int x, int y, Colour colour) {
    Colour& below = at(x, y);
    float alpha = colour.a + below.a * (1 - colour.a);
    if (alpha <= 0) {
        return;
    }
    below = mix(below, colour, colour.a / alpha).fade(alpha);
}

void Canvas::save(const std::string& path) const {
    auto byte = [](float c) {
        return static_cast<char>(std::lround(std::clamp(c, 0.0f, 1.0f) * 255));
    };
    auto low = [](int n) { return static_cast<char>(n & 255); };
    auto high = [](int n) { return static_cast<char>(n >> 8); };

    // Type 2 is uncompressed true colour; the last byte says 8 bits of alpha, origin bottom left.
    std::string bytes = {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    bytes += {low(columns), high(columns), low(rows), high(rows), 32, 8};
    for (const Colour& c : pixels) {
        bytes += {byte(c.b), byte(c.g), byte(c.r), byte(c.a)};
    }
    std::ofstream file(path, std::ios::binary);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        throw "cannot write " + path;
    }
}
