#pragma once

#include "Noise.h"

#include <vector>

/// Where a pixel lies in a wall of courses.
struct BlockPlace {
    float edge;   // signed distance to the block's own edge in pixels, below 0 inside
    float x, y;   // from the block's centre, -1 to 1 at its edges
    float random; // 0 to 1, the same all over one block
};

/// The joints of a wall whose opposite edges meet: courses of blocks of uneven length.
class Masonry {
public:
    struct Measures {
        float courseHeight; // mean, in pixels
        float blockLength;  // mean, in pixels
        float unevenness;   // 0 is a wall of equal blocks, 1 a wild one
        float corner;       // radius of a block's corners, in pixels
        float joint;        // width of the gap between blocks, in pixels
    };

    Masonry(float width, float height, const Measures& measures, const Noise& noise);

    /// `x` and `y` in pixels; places outside of the picture wrap.
    BlockPlace at(float x, float y) const;

private:
    struct Course {
        float bottom, top;
        std::vector<float> joints; // ascending, the last is the first plus the picture's width
    };

    float width, height;
    Measures measures;
    Noise noise;
    std::vector<Course> courses;
};
