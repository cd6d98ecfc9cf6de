#pragma once

#include "Canvas.h"

#include <vector>

/// A height for each pixel of a picture whose opposite edges meet, and the light that falls on it.
/// Surfaces are painted by giving their relief and their colour: the light does the drawing.
class Relief {
public:
    Relief(int width, int height);

    /// `heightAt(u, v)` in pixels, u and v from 0 to 1.
    template <class HeightAt>
    Relief(int width, int height, const HeightAt& heightAt) : Relief(width, height) {
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < columns; ++x) {
                at(x, y) = heightAt((static_cast<float>(x) + 0.5f) / static_cast<float>(columns),
                                    (static_cast<float>(y) + 0.5f) / static_cast<float>(rows));
            }
        }
        surround = blurred(5);
    }

    float& at(int x, int y) { return heights[index(x, y)]; }
    float at(int x, int y) const { return heights[index(x, y)]; }

    /// The colour as it looks there: lit from above and a little from the left, with a rim of
    /// light on tops, dark undersides and shade in hollows.
    Colour lit(int x, int y, Colour surface) const;

    /// How far the pixel stands above (or below 0, under) its surroundings, in pixels.
    float prominence(int x, int y) const { return at(x, y) - surround[index(x, y)]; }

    /// Sets every pixel of the canvas to the lit colour of `paint(u, v)`.
    template <class Paint>
    void paint(Canvas& canvas, const Paint& surface) const {
        canvas.fill(surface);
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < columns; ++x) {
                canvas.at(x, y) = lit(x, y, canvas.at(x, y));
            }
        }
    }

private:
    std::size_t index(int x, int y) const;
    std::vector<float> blurred(int radius) const;

    int columns, rows;
    std::vector<float> heights;
    std::vector<float> surround;
};
