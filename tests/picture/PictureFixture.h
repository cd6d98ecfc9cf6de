#pragma once

#include "support/EngineFixture.h"

class TransformGraphicsObject;

/// The engine on real OpenGL in a window of 640 by 512, so that the picture is half the logical
/// screen's size with bars of 56 pixels above and below. Overlays are clear, ambient light is full,
/// and a free camera looks at the world's origin. Buffers are never swapped: the picture stays
/// where pixels are read from.
class PictureFixture : public EngineFixture {
protected:
    /// Of 255. Every pass that blends into 8 bits rounds once, drivers to either side.
    static constexpr int tolerance = 4;

    void prepareDirectory() override;
    std::unique_ptr<platform::Window> makeInnerWindow() override;
    std::unique_ptr<PaintDevice> makeDevice() override;
    void SetUp() override;

    /// Draws one frame; no time passes.
    static void draw();

    /// Adds a square of one colour round a world point. Owned by `GraphicsModule`.
    TransformGraphicsObject* addSquare(float x, float y, float halfSide, float z, float r, float g,
                                       float b, float a = 1.0F, const char* texture = "",
                                       float parallax = 1.0F);

    /// Compares a pixel, 0 to 1 each, at a point of the logical screen.
    static void expectColour(float x, float y, float r, float g, float b);
};

constexpr float centreX = 640.0F; ///< Where the world's origin is seen.
constexpr float centreY = 400.0F;
