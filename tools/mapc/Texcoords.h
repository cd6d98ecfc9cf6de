#pragma once

#include "Level.h"
#include "TextureSizes.h"

namespace mapc {

/// The u, v pair of each corner of the outline, by the rules that the engine maps polygons with:
/// world mode lays the texture fixed in the world at two units a texel, bounds mode stretches it
/// over the outline's own box, mixed mode takes u of the one and v of the other. A sprite sheet
/// shows its first frame.
std::vector<Point> mapTexcoords(const Outline& outline, const Pose& pose, const Appearance& look,
                                TextureSize size);

} // namespace mapc
