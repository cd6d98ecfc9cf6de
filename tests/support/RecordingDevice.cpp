#include "RecordingDevice.h"

void RecordingDevice::forget() {
    draws.clear();
    drawCount = 0;
    clearCount = 0;
    stateChangeCount = 0;
}

void RecordingDevice::draw(PaintPrimitive primitive, std::span<const PaintVertex> vertices,
                           std::span<const std::uint32_t> indices) {
    ++drawCount;
    if (keepsDraws) {
        draws.push_back({primitive,
                         texture,
                         {vertices.begin(), vertices.end()},
                         {indices.begin(), indices.end()}});
    }
}

void RecordingDevice::setViewport(int x, int y, int width, int height) {
    viewport = {x, y, width, height};
    ++stateChangeCount;
}

void RecordingDevice::setScissor(int x, int y, int width, int height) {
    scissor = {x, y, width, height};
    ++stateChangeCount;
}

void RecordingDevice::bindTexture(int name) {
    texture = name;
    ++stateChangeCount;
}

void RecordingDevice::uploadTexture(int name, int, int, TextureFormat format, bool mipmaps,
                                    const std::uint8_t*) {
    textures[name] = {format, mipmaps};
}

int RecordingDevice::createTextureName() {
    int name = 100000; // above any handle of a store
    while (textures.contains(name)) {
        ++name;
    }
    return name;
}
