#pragma once

#include "PaintDevice.h"

#include <LinearMath/btTransform.h>

#include <memory>
#include <vector>

/// A map of the plane with a shift of depth, which is all that 2D drawing needs of a matrix:
/// (x, y, z) goes to (m00 x + m01 y + x0, m10 x + m11 y + y0, z + z0).
struct PaintTransform {
    float m00 = 1.0F, m01 = 0.0F, m10 = 0.0F, m11 = 1.0F;
    float x = 0.0F, y = 0.0F, z = 0.0F;
};

/// The arrays of a shape in local space, one entry a vertex: x, y pairs; u, v pairs; r, g, b, a.
struct ShapeArrays {
    const float* positions;
    const float* texcoords;
    const float* colours;
    std::size_t count;
};

/// A point of the plane, before transforms.
struct PaintPoint {
    float x, y;
};

struct PaintColour {
    float r, g, b, a;
};

/// Factor on red, green and blue of every vertex.
struct Tint {
    float r = 1.0F, g = 1.0F, b = 1.0F;
};

/// The one way to the screen. Collects shapes, transformed by the present matrix, into one vertex
/// array for as long as the state stays, and hands it to the device when the state changes. Order
/// of drawing is order of calling.
class Painter {
public:
    explicit Painter(std::unique_ptr<PaintDevice> device);
    ~Painter();
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// The device's fixed set-up, once a window. All state has to be set anew afterwards.
    void setUp(float width, float height);

    // The matrix stack, each operation applied before what is there, as in fixed-function OpenGL.
    void pushTransform();
    void popTransform(); ///< Asserts that there is something to pop.
    void translate(float x, float y, float z);
    void scale(float factor);
    void multiply(const btTransform& transform); ///< A turn about z and an origin.
    const PaintTransform& getTransform() const { return transform; }
    /// Takes one that was read before in place of the present one.
    void setTransform(const PaintTransform& other) { transform = other; }

    // Shapes, in the present texture and state.
    void polygon(const ShapeArrays& shape, const Tint& tint = {}); ///< Convex.
    void triangles(const ShapeArrays& shape);
    void quadStrip(const ShapeArrays& shape);
    void quadStrip(std::span<const PaintPoint> points, const PaintColour& colour);
    void lineLoop(const ShapeArrays& shape);       ///< A single vertex becomes a point.
    void lines(std::span<const PaintVertex> ends); ///< Pairs, in local space.
    void points(std::span<const PaintVertex> places);
    /// A rectangle of one colour and the whole texture, at depth z.
    void rectangle(float left, float bottom, float right, float top, float z, float r, float g,
                   float b, float a);

    // State. A call that changes nothing costs nothing; one that does flushes.
    void setBlend(BlendMode mode);
    void setDepthTest(bool on);
    void setDepthFunction(DepthFunction function);
    void setAlphaTest(bool on);
    void setColourMask(bool rgb, bool alpha);
    void setWireframe(bool on);
    void setViewport(int x, int y, int width, int height);
    void setScissor(int x, int y, int width, int height);
    void bindTexture(int name); ///< For `TextureStore::bind` only, which keeps track.
    void clear(float r, float g, float b, float a);

    /// Hands everything collected to the device.
    void flush();

    /// For uploads, copies and reads. Flushes first.
    PaintDevice& device();

private:
    struct State;

    std::unique_ptr<PaintDevice> paintDevice;
    std::unique_ptr<State> state;
    PaintTransform transform;
    std::vector<PaintTransform> stack;
    PaintPrimitive primitive = PaintPrimitive::triangles;
    // Kept at full length and filled from the front, so that a shape costs no initialisation.
    std::vector<PaintVertex> vertices;
    std::vector<std::uint32_t> indices;
    std::size_t vertexCount = 0;
    std::size_t indexCount = 0;

    std::uint32_t append(const ShapeArrays& shape, const Tint& tint);
    std::uint32_t append(std::span<const PaintVertex> places);
    void appendFan(std::uint32_t base, std::size_t count);
    void appendStrip(std::uint32_t base, std::size_t quads);
    void appendRun(std::uint32_t base, std::size_t count);
    void begin(PaintPrimitive wanted, std::size_t newVertices, std::size_t newIndices);
    void grow(std::size_t vertexRoom, std::size_t indexRoom);
};

/// The process's painter, on OpenGL unless another was set before first use.
Painter& painter();
void setPainter(std::unique_ptr<Painter> replacement);
