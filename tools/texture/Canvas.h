#pragma once

#include <string>
#include <vector>

struct Colour {
    float r, g, b, a = 1;

    Colour operator*(float k) const { return {r * k, g * k, b * k, a}; }
    Colour operator+(Colour o) const { return {r + o.r, g + o.g, b + o.b, a}; }
    Colour fade(float alpha) const { return {r, g, b, alpha}; }
};

inline Colour mix(Colour a, Colour b, float t) {
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t,
            a.a + (b.a - a.a) * t};
}

/// The few colours of the game's world.
namespace palette {
inline constexpr Colour night{0.040f, 0.048f, 0.078f};
inline constexpr Colour slate{0.36f, 0.41f, 0.50f};
inline constexpr Colour steel{0.46f, 0.52f, 0.60f};
inline constexpr Colour moonlight{0.72f, 0.80f, 0.95f};
inline constexpr Colour rust{0.43f, 0.255f, 0.175f};
inline constexpr Colour timber{0.44f, 0.33f, 0.24f};
inline constexpr Colour bone{0.88f, 0.83f, 0.72f};
} // namespace palette

/// A picture of straight-alpha colours, 0 to 1, with y going up as in the game.
class Canvas {
public:
    Canvas(int width, int height);

    int width() const { return columns; }
    int height() const { return rows; }
    Colour& at(int x, int y) { return pixels[index(x, y)]; }
    const Colour& at(int x, int y) const { return pixels[index(x, y)]; }

    /// Lays a colour over the pixel by its alpha.
    void over(int x, int y, Colour colour);

    /// Sets every pixel to `paint(u, v)`, with u and v at the pixel's centre, 0 to 1.
    template <class Paint>
    void fill(const Paint& paint) {
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < columns; ++x) {
                at(x, y) = paint((static_cast<float>(x) + 0.5f) / static_cast<float>(columns),
                                 (static_cast<float>(y) + 0.5f) / static_cast<float>(rows));
            }
        }
    }

    /// Writes an uncompressed 32-bit TGA, bottom row first. Raises a string when it cannot.
    void save(const std::string& path) const;

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(x);
    }

    int columns, rows;
    std::vector<Colour> pixels;
};
