#pragma once

#include "PaintDevice.h"

/// The painter's device on fixed-function OpenGL 1.x. A texture's name is its OpenGL name; -1 binds
/// the name 0xFFFFFFFF, which never gets an image, so that drawing shows plain vertex colours.
/// Needs a current context from `setUp` on, and one `setUp` a context.
class GlDevice : public PaintDevice {
public:
    void setUp(float width, float height) override;
    void draw(PaintPrimitive primitive, std::span<const PaintVertex> vertices,
              std::span<const std::uint32_t> indices) override;
    void clear(float r, float g, float b, float a) override;
    void setBlend(BlendMode mode) override;
    void setDepthTest(bool on) override;
    void setDepthFunction(DepthFunction function) override;
    void setAlphaTest(bool on) override;
    void setColourMask(bool rgb, bool alpha) override;
    void setWireframe(bool on) override;
    void setViewport(int x, int y, int width, int height) override;
    void setScissor(int x, int y, int width, int height) override;

    void bindTexture(int name) override;
    void uploadTexture(int name, int width, int height, TextureFormat format, bool mipmaps,
                       const std::uint8_t* pixels) override;
    int createTextureName() override;
    void deleteTexture(int name) override;
    void copyToBoundTexture(int width, int height) override;
    std::array<std::uint8_t, 3> readPixel(int x, int y) override;
    int alphaBits() override;
    /// A framebuffer object, which goes with the context.
    bool createOffscreen(int width, int height) override;
    void setOffscreen(bool on) override;
    int maxTextureSize() override;

private:
    const PaintVertex* arrays = nullptr; ///< Where the client arrays point; not owned.
    unsigned framebuffer = 0;            ///< OpenGL name of the offscreen buffer, 0 without one.
};
