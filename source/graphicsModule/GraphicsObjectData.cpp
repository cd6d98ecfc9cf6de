#include "GraphicsObjectData.h"

#include <cmath>

namespace {

GraphicsObjectData makeData(std::vector<float> vertices, int texture, float z, float parallax,
                            int texcoordMode, float r, float g, float b, float a) {
    GraphicsObjectData data;
    data.texcoords.assign(vertices.size(), 0.0F);
    data.colours.reserve(vertices.size() * 2);
    for (std::size_t i = 0; i < vertices.size(); i += 2) {
        data.colours.insert(data.colours.end(), {r, g, b, a});
    }
    data.vertices = std::move(vertices);
    data.texture = texture;
    data.parallax = parallax;
    data.z = z;
    data.texcoordMode = texcoordMode;
    return data;
}

} // namespace

GraphicsObjectData makeBoxData(float halfWidth, float halfHeight, int texture, float z,
                               float parallax, int texcoordMode, float r, float g, float b,
                               float a) {
    return makeData({-halfWidth, -halfHeight, -halfWidth, halfHeight, halfWidth, halfHeight,
                     halfWidth, -halfHeight},
                    texture, z, parallax, texcoordMode, r, g, b, a);
}

GraphicsObjectData makeCircleData(float radius, int texture, float z, float parallax,
                                  int texcoordMode, float r, float g, float b, float a) {
    constexpr double fullTurn = 6.28318; // a hair short, so that the outline closes
    double corners = 5.0 + 5.0 * std::log(radius);
    if (!(corners > 0.0)) {
        corners = 3.0; // a disc too small for the logarithm is a triangle
    }
    const double step = fullTurn / corners;
    std::vector<float> vertices;
    for (double angle = 0.0; angle <= fullTurn; angle += step) {
        vertices.push_back(static_cast<float>(radius * std::sin(angle)));
        vertices.push_back(static_cast<float>(radius * std::cos(angle)));
    }
    return makeData(std::move(vertices), texture, z, parallax, texcoordMode, r, g, b, a);
}
