#include "RecordingDevice.h"

namespace {

constexpr int firstFreeName = 100000; // above any handle of a store

} // namespace

template <class T>
void RecordingDevice::change(T& field, const T& value) {
    field = value;
    ++stateChangeCount;
}

void RecordingDevice::forget() {
    draws.clear();
    clears.clear();
    drawCount = 0;
    clearCount = 0;
    stateChangeCount = 0;
    copyCount = 0;
    vertexCount = 0;
}

void RecordingDevice::setUp(float, float) {}

void RecordingDevice::draw(PaintPrimitive primitive, std::span<const PaintVertex> vertices,
                           std::span<const std::uint32_t> indices) {
    ++drawCount;
    vertexCount += vertices.size();
    if (!keepsDraws) {
        return;
    }
    Draw& kept =
        draws.emplace_back(Draw{primitive, state, vertices.size(), indices.size(), {}, {}});
    if (keepsVertices) {
        kept.vertices.assign(vertices.begin(), vertices.end());
        kept.indices.assign(indices.begin(), indices.end());
    }
}

void RecordingDevice::clear(float r, float g, float b, float a) {
    ++clearCount;
    if (keepsDraws) {
        clears.push_back({r, g, b, a});
    }
}

void RecordingDevice::setBlend(BlendMode mode) {
    change(state.blend, mode);
}

void RecordingDevice::setDepthTest(bool on) {
    change(state.depthTest, on);
}

void RecordingDevice::setDepthFunction(DepthFunction function) {
    change(state.depthFunction, function);
}

void RecordingDevice::setAlphaTest(bool on) {
    change(state.alphaTest, on);
}

void RecordingDevice::setColourMask(bool rgb, bool alpha) {
    state.rgbMask = rgb;
    change(state.alphaMask, alpha);
}

void RecordingDevice::setWireframe(bool on) {
    change(state.wireframe, on);
}

void RecordingDevice::setViewport(int x, int y, int width, int height) {
    change(state.viewport, {x, y, width, height});
}

void RecordingDevice::setScissor(int x, int y, int width, int height) {
    change(state.scissor, {x, y, width, height});
}

void RecordingDevice::bindTexture(int name) {
    change(state.texture, name);
}

void RecordingDevice::uploadTexture(int name, int width, int height, TextureFormat format,
                                    bool mipmaps, const std::uint8_t*) {
    textures[name] = {width, height, format, mipmaps};
}

int RecordingDevice::createTextureName() {
    int name = firstFreeName;
    while (textures.contains(name)) {
        ++name;
    }
    return name;
}

void RecordingDevice::deleteTexture(int name) {
    textures.erase(name);
}

void RecordingDevice::copyToBoundTexture(int, int) {
    ++copyCount;
}

std::array<std::uint8_t, 3> RecordingDevice::readPixel(int, int) {
    return pixel;
}
