// How a polygon's texture coordinates are made from its vertices.

#include "GraphicsObjecte.h"
#include "TextureStore.h"
#include "Yaw.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace {

std::array<float, 2> sizeOfTexture(int handle) {
    int width = 1;
    int height = 1;
    textureStore().sizeOf(handle, width, height);
    return {static_cast<float>(width), static_cast<float>(height)};
}

} // namespace

void GraphicsObjecte::regenerateTexcoords() {
    data.texcoords.resize(data.vertices.size());
    switch (data.texcoordMode) {
    case 0:
        mapTexcoordsToBounds();
        break;
    case 1:
        mapTexcoordsToWorld();
        break;
    case 2:
        mapTexcoordsMixed();
        break;
    default:
        assert(!"source/graphicsModule/GraphicsObject: unknown texcoordMode");
    }
}

void GraphicsObjecte::mapTexcoordsToWorld() {
    const auto [width, height] = sizeOfTexture(data.texture);
    mapAxisToWorld(0, width);
    mapAxisToWorld(1, height);
}

void GraphicsObjecte::mapTexcoordsToBounds() {
    const auto [width, height] = sizeOfTexture(data.texture);
    mapAxisToBounds(0, width);
    mapAxisToBounds(1, height);
}

void GraphicsObjecte::mapTexcoordsMixed() {
    const auto [width, height] = sizeOfTexture(data.texture);
    mapAxisToWorld(0, width);
    mapAxisToBounds(1, height);
}

// The texture lies fixed in the world, one texel on two world units, centred on the world's origin.
void GraphicsObjecte::mapAxisToWorld(int axis, float textureSize) {
    btTransform transform;
    getTransform(transform);
    const Yaw yaw = yawOf(transform);
    const float alongX = axis == 0 ? yaw.cosine : yaw.sine;
    const float alongY = axis == 0 ? -yaw.sine : yaw.cosine;
    const float origin = transform.getOrigin()[axis];
    const std::size_t count = std::min(data.vertices.size(), data.texcoords.size());
    for (std::size_t i = 0; i + 1 < count; i += 2) {
        const float place = data.vertices[i] * alongX + data.vertices[i + 1] * alongY + origin;
        data.texcoords[i + axis] = (place - textureSize / 2.0F) / (2.0F * textureSize);
    }
}

// The texture is stretched over the polygon's box, half a texel short at both ends, where filtering
// would mix in the opposite edge.
void GraphicsObjecte::mapAxisToBounds(int axis, float textureSize) {
    const Bounds box = vertexBox();
    const float start = axis == 0 ? box.left : box.bottom;
    const float length = (axis == 0 ? box.right : box.top) - start;
    const float inset = length / 2.0F / textureSize;
    const std::size_t count = std::min(data.vertices.size(), data.texcoords.size());
    for (std::size_t i = 0; i + 1 < count; i += 2) {
        const float distance = data.vertices[i + axis] - start;
        const float inside = distance < inset ? inset : distance - inset;
        // A box without extent shows the texture's edge: no division by nothing may reach a save.
        data.texcoords[i + axis] = length > 0.0F ? inside / length : 0.0F;
    }
}
