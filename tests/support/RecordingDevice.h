#pragma once

#include "graphicsModule/PaintDevice.h"

#include <map>
#include <vector>

/// A paint device that draws nothing and counts what it is asked for; on request it keeps every
/// draw. Boxes are x, y, width, height in window pixels.
class RecordingDevice : public PaintDevice {
public:
    struct Draw {
        PaintPrimitive primitive;
        int texture;
        std::vector<PaintVertex> vertices;
        std::vector<std::uint32_t> indices;
    };
    struct Texture {
        TextureFormat format;
        bool mipmaps;
    };

    bool keepsDraws = false; ///< Off, steady frames allocate nothing here.
    std::vector<Draw> draws;

    // Counts since the start or the latest `forget`.
    int drawCount = 0;
    int clearCount = 0;
    int stateChangeCount = 0; ///< Textures and boxes included.

    // The present state.
    int texture = -1;
    std::array<int, 4> viewport{};
    std::array<int, 4> scissor{};
    std::map<int, Texture> textures; ///< Uploaded and not deleted, by name.

    /// Starts counting and keeping anew; state and textures stay.
    void forget();

    void setUp(float, float) override {}
    void draw(PaintPrimitive primitive, std::span<const PaintVertex> vertices,
              std::span<const std::uint32_t> indices) override;
    void clear(float, float, float, float) override { ++clearCount; }
    void setBlend(BlendMode) override { ++stateChangeCount; }
    void setDepthTest(bool) override { ++stateChangeCount; }
    void setDepthFunction(DepthFunction) override { ++stateChangeCount; }
    void setAlphaTest(bool) override { ++stateChangeCount; }
    void setColourMask(bool, bool) override { ++stateChangeCount; }
    void setWireframe(bool) override { ++stateChangeCount; }
    void setViewport(int x, int y, int width, int height) override;
    void setScissor(int x, int y, int width, int height) override;
    void bindTexture(int name) override;
    void uploadTexture(int name, int width, int height, TextureFormat format, bool mipmaps,
                       const std::uint8_t* pixels) override;
    int createTextureName() override;
    void deleteTexture(int name) override { textures.erase(name); }
    void copyToBoundTexture(int, int) override {}
    std::array<std::uint8_t, 3> readPixel(int, int) override { return {}; }
    int alphaBits() override { return 8; }
};
