#include "Ratio.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GlDevice.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/LightMap.h"
#include "graphicsModule/Painter.h"
#include "graphicsModule/TextureStore.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"

#include <GL/gl.h>

#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

// The pass of eight shadowed lights against the same strips and quads, recorded once and sent with
// bare OpenGL from ready arrays. A scissor of one pixel leaves the work on vertices alone.

namespace {

constexpr int lightCount = 8;
constexpr int corners = 8;
constexpr float radius = 15.0F;
constexpr float lightSize = 250.0F;

/// OpenGL that may be made to look through one pixel only.
class Pinhole : public GlDevice {
public:
    explicit Pinhole(bool isNarrow) : narrow(isNarrow) {}

    void setScissor(int x, int y, int width, int height) override {
        if (narrow) {
            GlDevice::setScissor(0, 0, 1, 1);
        } else {
            GlDevice::setScissor(x, y, width, height);
        }
    }

private:
    bool narrow;
};

/// Keeps what it is told, draws nothing, and sends it all again on request.
class Recording : public PaintDevice {
public:
    /// `target` takes the state; the triangles go to OpenGL. Owned by the caller.
    void replay(PaintDevice& target) const {
        glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
        glVertexPointer(3, GL_FLOAT, sizeof(PaintVertex), &vertices.data()->x);
        glTexCoordPointer(2, GL_FLOAT, sizeof(PaintVertex), &vertices.data()->u);
        glColorPointer(4, GL_FLOAT, sizeof(PaintVertex), &vertices.data()->r);
        for (const auto& call : calls) {
            call(target);
        }
        glPopClientAttrib();
        glFinish();
    }

    void draw(PaintPrimitive, std::span<const PaintVertex> shape,
              std::span<const std::uint32_t> order) override {
        const auto first = static_cast<GLuint>(vertices.size());
        std::vector<GLuint> indices;
        for (const std::uint32_t index : order) {
            indices.push_back(first + index);
        }
        vertices.insert(vertices.end(), shape.begin(), shape.end());
        const auto last = static_cast<GLuint>(vertices.size() - 1);
        calls.emplace_back([indices = std::move(indices), first, last](PaintDevice&) {
            glDrawRangeElements(GL_TRIANGLES, first, last, static_cast<GLsizei>(indices.size()),
                                GL_UNSIGNED_INT, indices.data());
        });
    }
    void clear(float r, float g, float b, float a) override {
        keep([=](PaintDevice& device) { device.clear(r, g, b, a); });
    }
    void setBlend(BlendMode mode) override {
        keep([=](PaintDevice& device) { device.setBlend(mode); });
    }
    void setDepthTest(bool on) override {
        keep([=](PaintDevice& device) { device.setDepthTest(on); });
    }
    void setColourMask(bool rgb, bool alpha) override {
        keep([=](PaintDevice& device) { device.setColourMask(rgb, alpha); });
    }
    void setViewport(int x, int y, int width, int height) override {
        keep([=](PaintDevice& device) { device.setViewport(x, y, width, height); });
    }
    void setScissor(int x, int y, int width, int height) override {
        keep([=](PaintDevice& device) { device.setScissor(x, y, width, height); });
    }
    void bindTexture(int name) override {
        keep([=](PaintDevice& device) { device.bindTexture(name); });
    }

    // Not of a light pass.
    void setUp(float, float) override {}
    void setDepthFunction(DepthFunction) override {}
    void setAlphaTest(bool) override {}
    void setWireframe(bool) override {}
    void uploadTexture(int, int, int, TextureFormat, bool, const std::uint8_t*) override {}
    int createTextureName() override { return 0; }
    void deleteTexture(int) override {}
    void copyToBoundTexture(int, int) override {}
    std::array<std::uint8_t, 3> readPixel(int, int) override { return {}; }
    int alphaBits() override { return 8; }

private:
    template <class Call>
    void keep(Call call) {
        calls.emplace_back(call);
    }

    std::vector<std::function<void(PaintDevice&)>> calls;
    std::vector<PaintVertex> vertices;
};

/// Puts a painter on the device. All state is told anew.
void paintOn(std::unique_ptr<PaintDevice> device) {
    setPainter(std::make_unique<Painter>(std::move(device)));
    painter().setUp(logicalWidth, logicalHeight);
}

std::vector<GraphicsObject*> addPolygons(int count) {
    std::vector<GraphicsObject*> polygons;
    GraphicsObjectData data;
    for (int i = 0; i < corners; ++i) {
        const float angle = static_cast<float>(i) * SIMD_2_PI / corners;
        data.vertices.insert(data.vertices.end(),
                             {radius * std::sin(angle), radius * std::cos(angle)});
    }
    data.texcoords.assign(2 * corners, 0.0F);
    data.colours.assign(4 * corners, 1.0F);
    data.texture = -1;
    data.parallax = 1.0F;
    for (int i = 0; i < count; ++i) {
        const float x = static_cast<float>(i * 37 % 1200) - 600.0F;
        const float y = static_cast<float>(i * 53 % 720) - 360.0F;
        auto* polygon = new TransformGraphicsObject(x, y, data);
        polygon->getTransformRef().getBasis().setEulerZYX(0, 0, static_cast<float>(i));
        graphicsModule().addObject(polygon);
        polygons.push_back(polygon);
    }
    return polygons;
}

void addLights() {
    LightProperties look;
    look.size = lightSize;
    look.red = look.green = look.blue = 0.5F;
    look.castsShadows = true;
    look.texture = textureStore().find("light1.tga");
    SceneObjectDescription place{};
    place.a = 0.0F;
    for (int i = 0; i < lightCount; ++i) {
        const float x = static_cast<float>(i % 4) * 300.0F - 450.0F;
        const float y = i < 4 ? -180.0F : 180.0F;
        auto* lamp = new SceneObject(makeBoxParts(place, x, y, 1.0F, 1.0F));
        lamp->addAddition(new LightAdd(look));
        sceneManager().addSceneObject(lamp);
        lamp->update();
    }
}

void drawLights() {
    GraphicsModule& module = graphicsModule();
    LightMap& map = module.getLightMap();
    map.begin(module.ambient);
    map.drawLights(module.getLights(), module.getObjects(), module.getView());
    painter().flush();
}

void lightPass(benchmark::State& state) {
    const bool narrow = state.range(1) == 1;
    graphicsModule().camera->setView(0.0F, 0.0F, 1.0F);
    const auto polygons = addPolygons(static_cast<int>(state.range(0)));
    addLights();
    paintOn(std::make_unique<Pinhole>(false));
    graphicsModule().update(); // places all and sorts it
    textureStore().bind(-1);

    auto recorder = std::make_unique<Recording>();
    const Recording& recording = *recorder;
    paintOn(std::move(recorder));
    drawLights();
    const Recording bare = recording;

    paintOn(std::make_unique<Pinhole>(narrow));
    drawLights();
    Pinhole device(narrow);
    compare(
        state, narrow ? 200 : 20, narrow ? 1.5 : 1.2,
        [] {
            drawLights();
            glFinish();
        },
        [&] { bare.replay(device); });

    sceneManager().clearScene();
    for (GraphicsObject* polygon : polygons) {
        graphicsModule().removeObject(polygon);
    }
    paintOn(std::make_unique<GlDevice>());
}

} // namespace

BENCHMARK(lightPass)
    ->ArgNames({"polygons", "pixel"})
    ->ArgsProduct({{300, 1000}, {0, 1}})
    ->Iterations(1);
