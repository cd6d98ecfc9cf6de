#include "Painter.h"

#include "GlDevice.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstring>
#include <optional>
#include <utility>

namespace {

// Room for a crowded screen; a scene that needs more makes the arrays grow once.
constexpr std::size_t initialVertices = 16384;
constexpr std::size_t initialIndices = 3 * initialVertices;
constexpr std::size_t initialStack = 16;

struct ColourMask {
    bool rgb, alpha;
    bool operator==(const ColourMask&) const = default;
};

struct PixelBox {
    int x, y, width, height;
    bool operator==(const PixelBox&) const = default;
};

/// Four floats that the processor multiplies at once.
using Rgba [[gnu::vector_size(4 * sizeof(float))]] = float;

void storeTinted(PaintVertex& vertex, const float* colour, const Rgba& factors) {
    Rgba tinted;
    std::memcpy(&tinted, colour, sizeof tinted);
    tinted *= factors;
    std::memcpy(reinterpret_cast<char*>(&vertex) + offsetof(PaintVertex, r), &tinted,
                sizeof tinted);
}

PaintVertex place(const PaintTransform& t, PaintVertex vertex) {
    const float x = vertex.x;
    const float y = vertex.y;
    vertex.x = t.m00 * x + t.m01 * y + t.x;
    vertex.y = t.m10 * x + t.m11 * y + t.y;
    vertex.z += t.z;
    return vertex;
}

} // namespace

/// What the device was last told; empty where it was told nothing yet.
struct Painter::State {
    std::optional<BlendMode> blend;
    std::optional<bool> depthTest;
    std::optional<DepthFunction> depthFunction;
    std::optional<bool> alphaTest;
    std::optional<bool> wireframe;
    std::optional<ColourMask> colourMask;
    std::optional<PixelBox> viewport;
    std::optional<PixelBox> scissor;
};

Painter::Painter(std::unique_ptr<PaintDevice> device)
    : paintDevice(std::move(device)),
      state(std::make_unique<State>()),
      vertices(initialVertices),
      indices(initialIndices) {
    stack.reserve(initialStack);
}

Painter::~Painter() = default;

void Painter::setUp(float width, float height) {
    flush();
    *state = State{};
    paintDevice->setUp(width, height);
}

void Painter::pushTransform() {
    stack.push_back(transform);
}

void Painter::popTransform() {
    assert(!stack.empty() && "source/graphicsModule/Painter: pop without push");
    transform = stack.back();
    stack.pop_back();
}

void Painter::translate(float x, float y, float z) {
    transform.x += transform.m00 * x + transform.m01 * y;
    transform.y += transform.m10 * x + transform.m11 * y;
    transform.z += z;
}

void Painter::scale(float factor) {
    transform.m00 *= factor;
    transform.m01 *= factor;
    transform.m10 *= factor;
    transform.m11 *= factor;
}

void Painter::multiply(const btTransform& other) {
    const btVector3& origin = other.getOrigin();
    translate(origin.x(), origin.y(), origin.z());
    const btMatrix3x3& b = other.getBasis();
    const PaintTransform t = transform;
    transform.m00 = t.m00 * b[0][0] + t.m01 * b[1][0];
    transform.m01 = t.m00 * b[0][1] + t.m01 * b[1][1];
    transform.m10 = t.m10 * b[0][0] + t.m11 * b[1][0];
    transform.m11 = t.m10 * b[0][1] + t.m11 * b[1][1];
}

void Painter::polygon(const ShapeArrays& shape, const Tint& tint) {
    if (shape.count < 3) {
        return;
    }
    begin(PaintPrimitive::triangles, shape.count, 3 * (shape.count - 2));
    appendFan(append(shape, tint), shape.count);
}

void Painter::triangles(const ShapeArrays& shape) {
    const ShapeArrays whole{shape.positions, shape.texcoords, shape.colours,
                            shape.count - shape.count % 3};
    begin(PaintPrimitive::triangles, whole.count, whole.count);
    appendRun(append(whole, {}), whole.count);
}

void Painter::quadStrip(const ShapeArrays& shape) {
    if (shape.count < 4) {
        return;
    }
    const std::size_t quads = shape.count / 2 - 1;
    begin(PaintPrimitive::triangles, shape.count, 6 * quads);
    appendStrip(append(shape, {}), quads);
}

void Painter::quadStrip(std::span<const PaintPoint> points, const PaintColour& colour) {
    if (points.size() < 4) {
        return;
    }
    const std::size_t quads = points.size() / 2 - 1;
    begin(PaintPrimitive::triangles, points.size(), 6 * quads);
    const PaintTransform t = transform;
    PaintVertex* out = vertices.data() + vertexCount;
    for (const PaintPoint& point : points) {
        *out++ = {t.m00 * point.x + t.m01 * point.y + t.x,
                  t.m10 * point.x + t.m11 * point.y + t.y,
                  t.z,
                  0.0F,
                  0.0F,
                  colour.r,
                  colour.g,
                  colour.b,
                  colour.a};
    }
    appendStrip(static_cast<std::uint32_t>(std::exchange(vertexCount, vertexCount + points.size())),
                quads);
}

void Painter::lineLoop(const ShapeArrays& shape) {
    if (shape.count < 2) {
        begin(PaintPrimitive::points, shape.count, shape.count);
        appendRun(append(shape, {}), shape.count);
        return;
    }
    begin(PaintPrimitive::lines, shape.count, 2 * shape.count);
    const std::uint32_t base = append(shape, {});
    for (std::size_t i = 0; i < shape.count; ++i) {
        indices[indexCount++] = static_cast<std::uint32_t>(base + i);
        indices[indexCount++] = static_cast<std::uint32_t>(base + (i + 1) % shape.count);
    }
}

void Painter::lines(std::span<const PaintVertex> ends) {
    const auto pairs = ends.first(ends.size() - ends.size() % 2);
    begin(PaintPrimitive::lines, pairs.size(), pairs.size());
    appendRun(append(pairs), pairs.size());
}

void Painter::points(std::span<const PaintVertex> places) {
    begin(PaintPrimitive::points, places.size(), places.size());
    appendRun(append(places), places.size());
}

void Painter::rectangle(float left, float bottom, float right, float top, float z, float r, float g,
                        float b, float a) {
    const PaintVertex corners[] = {{left, bottom, z, 0.0F, 0.0F, r, g, b, a},
                                   {left, top, z, 0.0F, 1.0F, r, g, b, a},
                                   {right, top, z, 1.0F, 1.0F, r, g, b, a},
                                   {right, bottom, z, 1.0F, 0.0F, r, g, b, a}};
    begin(PaintPrimitive::triangles, 4, 6);
    appendFan(append(corners), 4);
}

void Painter::setBlend(BlendMode mode) {
    if (state->blend != mode) {
        flush();
        state->blend = mode;
        paintDevice->setBlend(mode);
    }
}

void Painter::setDepthTest(bool on) {
    if (state->depthTest != on) {
        flush();
        state->depthTest = on;
        paintDevice->setDepthTest(on);
    }
}

void Painter::setDepthFunction(DepthFunction function) {
    if (state->depthFunction != function) {
        flush();
        state->depthFunction = function;
        paintDevice->setDepthFunction(function);
    }
}

void Painter::setAlphaTest(bool on) {
    if (state->alphaTest != on) {
        flush();
        state->alphaTest = on;
        paintDevice->setAlphaTest(on);
    }
}

void Painter::setColourMask(bool rgb, bool alpha) {
    if (const ColourMask mask{rgb, alpha}; state->colourMask != mask) {
        flush();
        state->colourMask = mask;
        paintDevice->setColourMask(rgb, alpha);
    }
}

void Painter::setWireframe(bool on) {
    if (state->wireframe != on) {
        flush();
        state->wireframe = on;
        paintDevice->setWireframe(on);
    }
}

void Painter::setViewport(int x, int y, int width, int height) {
    if (const PixelBox box{x, y, width, height}; state->viewport != box) {
        flush();
        state->viewport = box;
        paintDevice->setViewport(x, y, width, height);
    }
}

void Painter::setScissor(int x, int y, int width, int height) {
    // A box turned inside out holds nothing; the device refuses negative sizes.
    const PixelBox box{x, y, std::max(width, 0), std::max(height, 0)};
    if (state->scissor != box) {
        flush();
        state->scissor = box;
        paintDevice->setScissor(box.x, box.y, box.width, box.height);
    }
}

void Painter::bindTexture(int name) {
    flush();
    paintDevice->bindTexture(name);
}

void Painter::clear(float r, float g, float b, float a) {
    flush();
    paintDevice->clear(r, g, b, a);
}

void Painter::flush() {
    if (indexCount == 0) {
        return;
    }
    paintDevice->draw(primitive, {vertices.data(), vertexCount}, {indices.data(), indexCount});
    vertexCount = 0;
    indexCount = 0;
}

PaintDevice& Painter::device() {
    flush();
    return *paintDevice;
}

/// Makes sure that the next shape joins others of its kind and finds room.
void Painter::begin(PaintPrimitive wanted, std::size_t newVertices, std::size_t newIndices) {
    if (primitive != wanted) {
        flush();
        primitive = wanted;
    }
    if (vertexCount + newVertices > vertices.size() || indexCount + newIndices > indices.size()) {
        grow(vertexCount + newVertices, indexCount + newIndices);
    }
}

void Painter::grow(std::size_t vertexRoom, std::size_t indexRoom) {
    vertices.resize(std::max(2 * vertices.size(), vertexRoom));
    indices.resize(std::max(2 * indices.size(), indexRoom));
}

/// Transforms the shape into the vertex array and returns the place of its first vertex there.
std::uint32_t Painter::append(const ShapeArrays& shape, const Tint& tint) {
    const PaintTransform t = transform;
    const float* position = shape.positions;
    const float* texcoord = shape.texcoords;
    const float* colour = shape.colours;
    const Rgba factors{tint.r, tint.g, tint.b, 1.0F};
    PaintVertex* out = vertices.data() + vertexCount;
    for (std::size_t i = 0; i < shape.count; ++i) {
        out->x = t.m00 * position[0] + t.m01 * position[1] + t.x;
        out->y = t.m10 * position[0] + t.m11 * position[1] + t.y;
        out->z = t.z;
        out->u = texcoord[0];
        out->v = texcoord[1];
        storeTinted(*out++, colour, factors);
        position += 2;
        texcoord += 2;
        colour += 4;
    }
    return static_cast<std::uint32_t>(std::exchange(vertexCount, vertexCount + shape.count));
}

std::uint32_t Painter::append(std::span<const PaintVertex> places) {
    PaintVertex* out = vertices.data() + vertexCount;
    for (const PaintVertex& vertex : places) {
        *out++ = place(transform, vertex);
    }
    return static_cast<std::uint32_t>(std::exchange(vertexCount, vertexCount + places.size()));
}

/// Indices of a convex polygon as triangles round its first vertex.
void Painter::appendFan(std::uint32_t base, std::size_t count) {
    std::uint32_t* out = indices.data() + indexCount;
    const auto end = static_cast<std::uint32_t>(base + count);
    for (std::uint32_t i = base + 2; i < end; ++i) {
        out[0] = base;
        out[1] = i - 1;
        out[2] = i;
        out += 3;
    }
    indexCount += 3 * (count - 2);
}

/// Indices of vertices that lie in turn on the two sides of a strip.
void Painter::appendStrip(std::uint32_t base, std::size_t quads) {
    std::uint32_t* out = indices.data() + indexCount;
    for (std::size_t i = 0; i < quads; ++i) {
        const auto a = static_cast<std::uint32_t>(base + 2 * i);
        for (const std::uint32_t corner : {a, a + 1, a + 3, a, a + 3, a + 2}) {
            *out++ = corner;
        }
    }
    indexCount += 6 * quads;
}

/// Indices of vertices that are used once each, in order.
void Painter::appendRun(std::uint32_t base, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        indices[indexCount++] = static_cast<std::uint32_t>(base + i);
    }
}

namespace {

std::unique_ptr<Painter> processPainter;

} // namespace

Painter& painter() {
    if (processPainter == nullptr) {
        processPainter = std::make_unique<Painter>(std::make_unique<GlDevice>());
    }
    return *processPainter;
}

void setPainter(std::unique_ptr<Painter> replacement) {
    processPainter = std::move(replacement);
}
