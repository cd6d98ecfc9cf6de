#pragma once

#include "graphicsModule/PaintDevice.h"

#include <map>
#include <memory>
#include <set>
#include <vector>

/// The state that a draw happens in. Boxes are x, y, width, height in window pixels.
struct PaintState {
    BlendMode blend = BlendMode::alpha;
    bool depthTest = false;
    DepthFunction depthFunction = DepthFunction::lessOrEqual;
    bool alphaTest = false;
    bool rgbMask = true;
    bool alphaMask = true;
    bool wireframe = false;
    int texture = -1;
    std::array<int, 4> viewport{};
    std::array<int, 4> scissor{};
};

/// A paint device that draws nothing and counts what it is asked for; on request it keeps every
/// draw with the state around it, and the vertices.
class RecordingDevice : public PaintDevice {
public:
    struct Draw {
        PaintPrimitive primitive;
        PaintState state;
        std::size_t vertexCount;
        std::size_t indexCount;
        std::vector<PaintVertex> vertices;  ///< Empty unless `keepsVertices`.
        std::vector<std::uint32_t> indices; ///< Likewise.
    };
    struct Texture {
        int width;
        int height;
        TextureFormat format;
        bool mipmaps;
    };

    bool keepsDraws = false;    ///< Off, steady frames allocate nothing here.
    bool keepsVertices = false; ///< Takes effect with `keepsDraws` only.
    std::vector<Draw> draws;
    std::vector<std::array<float, 4>> clears; ///< Colours, kept with `keepsDraws`.

    // Counts since the start or the latest `forget`.
    int drawCount = 0;
    int clearCount = 0;
    int stateChangeCount = 0; ///< Textures and boxes included.
    int copyCount = 0;
    std::size_t vertexCount = 0;

    PaintState state;                    ///< The present state.
    std::map<int, Texture> textures;     ///< Uploaded and not deleted, by name.
    std::array<std::uint8_t, 3> pixel{}; ///< What every read of a pixel gives.

    /// Starts counting and keeping anew; state and textures stay.
    void forget();

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
    int alphaBits() override { return 8; }

private:
    template <class T>
    void change(T& field, const T& value);
};
