#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

/// A vertex as the device gets it: already in the logical screen, with all transforms applied.
struct PaintVertex {
    float x, y, z;
    float u, v;
    float r, g, b, a;
};

enum class BlendMode {
    alpha,    ///< Source alpha over what is there.
    multiply, ///< What is there times the source.
    add,      ///< What is there plus the source.
    brighten, ///< What is there times one plus the source.
    replace,  ///< The source alone.
    unmasked, ///< What is there plus the source, the less of it the more alpha is there.
};

enum class DepthFunction { lessOrEqual, greaterOrEqual };

enum class PaintPrimitive { triangles, lines, points };

/// Pixel layout of an uploaded texture.
enum class TextureFormat { luminance, rgb, rgba };

/// What stands under the painter: OpenGL in the game (`GlDevice`), a recorder in tests. Textures
/// are known by small integers; -1 is no texture, drawn in plain vertex colours.
class PaintDevice {
public:
    virtual ~PaintDevice() = default;

    /// The fixed set-up: projection of the logical screen, depth range, multisampling.
    virtual void setUp(float width, float height) = 0;
    virtual void draw(PaintPrimitive primitive, std::span<const PaintVertex> vertices,
                      std::span<const std::uint32_t> indices) = 0;
    virtual void clear(float r, float g, float b, float a) = 0; ///< Colour and depth.
    virtual void setBlend(BlendMode mode) = 0;
    virtual void setDepthTest(bool on) = 0;
    virtual void setDepthFunction(DepthFunction function) = 0;
    virtual void setAlphaTest(bool on) = 0; ///< Passes alpha above 0.05.
    virtual void setColourMask(bool rgb, bool alpha) = 0;
    virtual void setWireframe(bool on) = 0;
    virtual void setViewport(int x, int y, int width, int height) = 0; ///< Window pixels.
    virtual void setScissor(int x, int y, int width, int height) = 0;  ///< Window pixels.

    virtual void bindTexture(int name) = 0;
    /// Filtered linearly, repeated, with mipmaps if asked for. Rows bottom-up; null is black.
    virtual void uploadTexture(int name, int width, int height, TextureFormat format, bool mipmaps,
                               const std::uint8_t* pixels) = 0;
    /// A name that no texture of the store has; to be asked for after these are loaded.
    virtual int createTextureName() = 0;
    virtual void deleteTexture(int name) = 0;
    /// Copies the lower left corner of the back buffer into the bound texture, without alpha.
    virtual void copyToBoundTexture(int width, int height) = 0;
    virtual std::array<std::uint8_t, 3> readPixel(int x, int y) = 0;
    virtual int alphaBits() = 0; ///< Of the back buffer.
    /// Prepares a buffer with alpha beside the window, once. False if the driver has no such thing.
    virtual bool createOffscreen(int /*width*/, int /*height*/) { return false; }
    /// Whether drawing, copies and reads take that buffer in place of the back buffer.
    virtual void setOffscreen(bool /*on*/) {}
    /// Longest side of a texture, pixels. A device without a limit takes all.
    virtual int maxTextureSize() { return std::numeric_limits<int>::max(); }
};
