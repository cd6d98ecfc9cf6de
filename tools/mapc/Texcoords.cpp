#include "Texcoords.h"

#include <algorithm>

namespace mapc {

namespace {

float alongWorld(float place, float texels) {
    return (place - texels / 2.0F) / (2.0F * texels);
}

/// Half a texel short at both ends, where filtering would mix in the opposite edge.
float alongBox(float distance, float length, float texels) {
    const float inset = length / 2.0F / texels;
    const float inside = distance < inset ? inset : distance - inset;
    return length > 0.0F ? inside / length : 0.0F;
}

} // namespace

std::vector<Point> mapTexcoords(const Outline& outline, const Pose& pose, const Appearance& look,
                                TextureSize size) {
    Point low = outline.front();
    Point high = low;
    for (const Point& point : outline) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    std::vector<Point> texcoords;
    for (const Point& point : outline) {
        const Point world = pose.toWorld(point);
        Point uv{alongWorld(world.x, size.width), alongWorld(world.y, size.height)};
        if (look.texcoordMode == TexcoordMode::bounds) {
            uv.x = alongBox(point.x - low.x, high.x - low.x, size.width);
        }
        if (look.texcoordMode != TexcoordMode::world) {
            uv.y = alongBox(point.y - low.y, high.y - low.y, size.height);
        }
        if (look.sheet.has_value()) {
            const auto columns = static_cast<float>(look.sheet->columns);
            const auto rows = static_cast<float>(look.sheet->rows);
            uv = {uv.x / columns, 1.0F - (1.0F - uv.y) / rows};
        }
        texcoords.push_back(uv);
    }
    return texcoords;
}

} // namespace mapc
