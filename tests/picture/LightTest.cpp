#include "PictureFixture.h"

#include "ProcessValues.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/GlDevice.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/LightReaderAdd.h"
#include "graphicsModule/Painter.h"
#include "graphicsModule/StaticWaterGraphics.h"
#include "graphicsModule/TextureStore.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace {

constexpr Colour3 white{1.0F, 1.0F, 1.0F};
constexpr Colour3 red{1.0F, 0.0F, 0.0F};
constexpr Colour3 green{0.0F, 1.0F, 0.0F};
constexpr Colour3 black{0.0F, 0.0F, 0.0F};

LightProperties lightOf(float size, const Colour3& colour, bool castsShadows) {
    LightProperties look;
    look.size = size;
    look.red = colour[0];
    look.green = colour[1];
    look.blue = colour[2];
    look.castsShadows = castsShadows;
    return look;
}

/// A dark room with a white back wall. Lights without a texture are squares with hard edges.
class LightTest : public PictureFixture {
protected:
    void SetUp() override {
        PictureFixture::SetUp();
        graphicsModule().ambient = graphicsModule().ambientTarget = black;
        addSquare(0.0F, 0.0F, 3000.0F, -1.5F, 1.0F, 1.0F, 1.0F);
    }

    /// A lamp that nothing meets, seen by its light alone. It counts from the next step on.
    static SceneObject* addLamp(float x, float y, const LightProperties& look) {
        PhysicsObject* body = createBox(x, y, 1.0F, 1.0F, 0.0F, 0.0F, 0.0F);
        body->kind = 0;
        auto* lamp = new SceneObject(
            {body, new PhysicsGraphicsObject(makeBoxData(1, 1, -1, 0, 1, 1, 0, 0, 0, 0), body)});
        lamp->addAddition(new LightAdd(look));
        sceneManager().addSceneObject(lamp);
        lamp->update();
        return lamp;
    }

    TransformGraphicsObject* addBlocker(float x, float y, const std::vector<float>& vertices) {
        GraphicsObjectData data = makeBoxData(1, 1, -1, 0.0F, 1.0F, 0, 1, 1, 1, 1);
        data.vertices = vertices;
        data.texcoords.assign(vertices.size(), 0.0F);
        data.colours.assign(vertices.size() * 2, 1.0F);
        auto* blocker = new TransformGraphicsObject(x, y, data);
        graphicsModule().addObject(blocker);
        return blocker;
    }

    static void expectAt(float x, float y, const Colour3& colour) {
        expectColour(centreX + x, centreY + y, colour[0], colour[1], colour[2]);
    }

    /// The brightest red of a part of the picture, given in world units, 0 to 255.
    static int brightest(float left, float bottom, float right, float top) {
        const auto px = [](float x) { return static_cast<int>((centreX + x) / 2.0F); };
        const auto py = [](float y) { return letterboxY + static_cast<int>((centreY + y) / 2.0F); };
        const int width = px(right) - px(left);
        const int height = py(top) - py(bottom);
        std::vector<std::uint8_t> reds(static_cast<std::size_t>(width * height));
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glReadPixels(px(left), py(bottom), width, height, GL_RED, GL_UNSIGNED_BYTE, reds.data());
        return *std::max_element(reds.begin(), reds.end());
    }

    void expectShadowRightOfBlocker() {
        expectAt(-200.0F, 0.0F, white);
        expectAt(100.0F, 100.0F, white);
        expectAt(100.0F, 0.0F, black); // what blocks the light is dark to it
        expectAt(200.0F, 0.0F, black);
        expectAt(280.0F, 0.0F, black);
        expectAt(200.0F, 60.0F, white);
        expectAt(330.0F, 200.0F, black); // out of the light's square
    }
};

TEST_F(LightTest, ALightIsHeldUpByWhatCastsAShadowAndByNothingElse) {
    const SceneObject* lamp = addLamp(0.0F, 0.0F, lightOf(300.0F, white, true));
    GraphicsObject* blocker = addSquare(100.0F, 200.0F, 20.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    draw();
    expectAt(200.0F, 0.0F, white);
    blocker->moveBy(0.0F, -200.0F);
    draw();
    expectShadowRightOfBlocker();

    auto* light = dynamic_cast<LightAdd*>(lamp->findAddition(AdditionType::light));
    light->setProperties(lightOf(300.0F, white, false));
    draw();
    expectAt(200.0F, 0.0F, white);
    expectAt(100.0F, 0.0F, white);

    light->setProperties(lightOf(300.0F, white, true));
    for (GraphicsObject* object : graphicsModule().getObjects()) {
        object->setCastsShadow(0);
    }
    draw();
    expectAt(200.0F, 0.0F, white);
}

TEST_F(LightTest, DepthDecidesWhatBlocksAndWhatIsReached) {
    graphicsModule().ambient = {0.5F, 0.25F, 0.0F};
    addLamp(0.0F, 0.0F, lightOf(300.0F, {0.25F, 0.25F, 0.25F}, true));
    addSquare(100.0F, 0.0F, 20.0F, 1.2F, 1.0F, 1.0F, 1.0F);
    addSquare(-100.0F, 0.0F, 20.0F, -1.2F, 1.0F, 1.0F, 1.0F);
    addSquare(0.0F, 100.0F, 20.0F, -1.0F, 1.0F, 1.0F, 1.0F);
    addSquare(0.0F, -100.0F, 20.0F, 1.0F, 1.0F, 1.0F, 1.0F);
    draw();
    const Colour3 lit{0.75F, 0.5F, 0.25F};
    expectAt(200.0F, 0.0F, lit);
    expectAt(-200.0F, 0.0F, lit);
    expectAt(-100.0F, 0.0F, lit);
    expectAt(100.0F, 0.0F, graphicsModule().ambient); // in front of the light's plane
    expectAt(0.0F, 200.0F, graphicsModule().ambient);
    expectAt(0.0F, -200.0F, graphicsModule().ambient);
}

TEST_F(LightTest, EachLightIsMaskedByItsOwnShadowsOnly) {
    addLamp(-100.0F, 0.0F, lightOf(300.0F, red, true));
    addLamp(100.0F, 200.0F, lightOf(300.0F, green, true));
    addLamp(150.0F, 0.0F, lightOf(20.0F, {0.0F, 0.0F, 0.5F}, false));
    addSquare(0.0F, 0.0F, 20.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    draw();
    expectAt(-150.0F, 100.0F, {1.0F, 1.0F, 0.0F});
    expectAt(100.0F, 0.0F, green);
    expectAt(-50.0F, -100.0F, red);
    expectAt(0.0F, 0.0F, black);
    expectAt(150.0F, 0.0F, {0.0F, 1.0F, 0.5F}); // a plain light asks for no mask
}

TEST_F(LightTest, ALightInsideAnObjectPassesThroughIt) {
    addSquare(10.0F, 0.0F, 50.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    const SceneObject* lamp = addLamp(0.0F, 0.0F, lightOf(300.0F, white, true));
    draw();
    expectAt(200.0F, 0.0F, white);
    expectAt(-200.0F, 0.0F, white);
    expectAt(40.0F, 0.0F, white);

    // Where shadows come from may lie elsewhere than the light.
    LightProperties look = lightOf(300.0F, white, true);
    look.offsetX = -100.0F;
    sceneManager().removeSceneObject(const_cast<SceneObject*>(lamp));
    addLamp(0.0F, 0.0F, look);
    draw();
    expectAt(200.0F, 0.0F, black);
    expectAt(-200.0F, 0.0F, white);
}

TEST_F(LightTest, TheShadowIsTheSameWhereverTheOutlineBegins) {
    // A disc whose outline repeats some corners, as closed outlines do.
    std::vector<float> outline;
    for (int i = 0; i < 12; ++i) {
        const float angle = static_cast<float>(i) * SIMD_2_PI / 12.0F;
        for (int times = i % 3 == 0 ? 2 : 1; times > 0; --times) {
            outline.insert(outline.end(), {20.0F * std::sin(angle), 20.0F * std::cos(angle)});
        }
    }
    addLamp(0.0F, 0.0F, lightOf(300.0F, white, true));
    for (std::size_t i = 0; i < outline.size(); i += 2) {
        std::rotate(outline.begin(), outline.begin() + 2, outline.end());
        for (const float way : {-1.0F, 1.0F}) {
            SCOPED_TRACE(i);
            GraphicsObject* blocker = addBlocker(way * 100.0F, 0.0F, outline);
            draw();
            EXPECT_EQ(brightest(way > 0.0F ? 110.0F : -280.0F, -12.0F,
                                way > 0.0F ? 280.0F : -110.0F, 12.0F),
                      0);
            expectAt(way * 150.0F, 60.0F, white);
            expectAt(way * 150.0F, -60.0F, white);
            graphicsModule().removeObject(blocker);
        }
    }
}

TEST_F(LightTest, NothingShinesThroughAWallThatALightMovesAlong) {
    // Two blocks that meet, one with corners along its edge; the light hugs them, at their level
    // and above, and comes to stand in line with every corner.
    addBlocker(-200.0F, -20.0F,
               {-200.0F, -20.0F, -200.0F, 20.0F, -50.0F, 20.0F, 0.0F, 20.0F, 50.0F, 20.0F, 200.0F,
                20.0F, 200.0F, -20.0F});
    addBlocker(200.0F, -20.0F, {-200.0F, -20.0F, -200.0F, 20.0F, 200.0F, 20.0F, 200.0F, -20.0F});
    SceneObject* lamp = addLamp(0.0F, 0.0F, lightOf(260.0F, white, true));
    for (const float height : {0.01F, 0.5F, 3.0F, 40.0F}) {
        for (float x = -60.0F; x <= 60.0F; x += 2.5F) {
            const btVector3 now = lamp->physicsObject->getRenderTransform().getOrigin();
            lamp->moveBy(x - now.x(), height - now.y());
            lamp->physicsObject->updateRenderTransform();
            draw();
            EXPECT_EQ(brightest(-330.0F, -330.0F, 330.0F, -4.0F), 0) << x << ", " << height;
            EXPECT_GT(brightest(x - 50.0F, height + 4.0F, x + 50.0F, height + 90.0F), 250);
        }
    }
}

TEST_F(LightTest, AnOddPeriodShowsTheLampItselfOverWhatLiesBehindItsGlow) {
    for (GraphicsObject* object : graphicsModule().getObjects()) {
        object->setColour(0.0F, 0.0F, 0.0F, 1.0F); // a black wall throws no light back
    }
    addSquare(0.0F, 40.0F, 10.0F, 1.4F, 1.0F, 1.0F, 1.0F);
    addSquare(0.0F, -40.0F, 10.0F, 1.5F, 1.0F, 1.0F, 1.0F);
    LightProperties look = lightOf(60.0F, {0.5F, 0.25F, 0.0F}, false);
    const SceneObject* lamp = addLamp(0.0F, 0.0F, look);
    auto* light = dynamic_cast<LightAdd*>(lamp->findAddition(AdditionType::light));
    for (const int period : {1, 0, 2, -1, -3}) {
        SCOPED_TRACE(period);
        look.flickerPeriod = period;
        light->setProperties(look);
        draw();
        const Colour3 glow = period == 1 ? Colour3{0.5F, 0.25F, 0.0F} : black;
        expectAt(0.0F, 0.0F, glow);
        expectAt(0.0F, 40.0F, glow); // also over what stands in front of the light's plane
        expectAt(0.0F, -40.0F, black);
        expectAt(80.0F, 0.0F, black);
    }
}

TEST_F(LightTest, WaterLetsHalfTheLightThroughWithinItsArea) {
    // As clear as glass: what is seen of it is what it does to the light.
    const auto addWater = [](float bottom) {
        auto* water =
            new StaticWaterGraphics(50, bottom, 210, 100, -1, 0, 1, 2, 1.0F, 1.0F, 1.0F, 0.0F);
        graphicsModule().addObject(water);
        return water;
    };
    addLamp(0.0F, 0.0F, lightOf(300.0F, {1.0F, 0.5F, 0.0F}, true));
    StaticWaterGraphics* water = addWater(-100.0F);
    draw();
    const Colour3 lit{1.0F, 0.5F, 0.0F};
    const Colour3 dimmed{0.5F, 0.25F, 0.0F};
    for (const auto& [x, y, colour] : {std::tuple{30.0F, 0.0F, lit},
                                       {70.0F, 0.0F, dimmed},
                                       {180.0F, -90.0F, dimmed},
                                       {180.0F, -110.0F, lit},
                                       {250.0F, 0.0F, lit}}) { // it throws no shadow
        expectAt(x, y, colour);
    }
    addWater(0.0F);
    draw();
    expectAt(100.0F, 50.0F, black); // where two overlap
    expectAt(100.0F, -50.0F, dimmed);
    water->setZ(-1.4F);
    draw();
    expectAt(100.0F, -50.0F, lit);
    water->setZ(0.0F);
    water->setCastsShadow(0);
    draw();
    expectAt(100.0F, -50.0F, lit);
}

TEST_F(LightTest, AReaderSeesWhatFallsOnItsObjectAndOffTheMapTheAmbientColour) {
    SceneObject* seen = addLamp(-100.0F, 50.0F, lightOf(0.0F, black, false));
    SceneObject* hidden = addLamp(200.0F, 0.0F, lightOf(0.0F, black, false));
    auto* inLight = new LightReaderAdd;
    auto* inShadow = new LightReaderAdd;
    seen->addAddition(inLight);
    hidden->addAddition(inShadow);
    addLamp(0.0F, 0.0F, lightOf(300.0F, {1.0F, 0.5F, 0.0F}, true));
    addSquare(100.0F, 0.0F, 20.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    seen->update();
    hidden->update();
    draw();
    EXPECT_EQ(inLight->red, 255);
    EXPECT_NEAR(inLight->green, 128, tolerance);
    EXPECT_EQ(inShadow->red, 0);
    EXPECT_TRUE(inShadow->onScreen);

    seen->moveBy(5000.0F, 0.0F);
    seen->physicsObject->updateRenderTransform();
    graphicsModule().ambient = {0.5F, 0.25F, 1.0F};
    draw();
    EXPECT_FALSE(inLight->onScreen);
    EXPECT_EQ(inLight->red, 127);
    EXPECT_EQ(inLight->blue, 255);
}

TEST_F(LightTest, LightsThatMakeNoSenseHarmNothing) {
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    constexpr float endless = std::numeric_limits<float>::infinity();
    addSquare(100.0F, 0.0F, 20.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    for (const float value : {0.0F, -50.0F, none, endless, -endless, 1e30F, 1e-30F}) {
        for (const int period : {0, 1, 2, 3, -2, -3, std::numeric_limits<int>::max(),
                                 std::numeric_limits<int>::min()}) {
            for (const int part : {0, 1, 2, 3}) {
                LightProperties look = lightOf(part == 0 ? value : 5.0F, black, part % 2 == 0);
                look.offsetX = part == 1 ? value : 0.0F;
                look.shiftY = part == 2 ? value : 0.0F;
                look.blue = part == 3 ? value : 0.0F;
                look.flickerPeriod = period;
                look.texture = 4711;
                addLamp(-400.0F, 300.0F, look);
            }
        }
    }
    addLamp(0.0F, 0.0F, lightOf(300.0F, white, true));
    for (int i = 0; i < 4; ++i) {
        step();
        draw();
        expectShadowRightOfBlocker();
    }
}

/// A driver whose window has no alpha.
class NoAlphaDevice : public GlDevice {
public:
    int alphaBits() override { return 0; }
};

/// One that cannot help either.
class NoBufferDevice : public NoAlphaDevice {
public:
    bool createOffscreen(int, int) override { return false; }
};

template <class Device>
class LightOn : public LightTest {
protected:
    std::unique_ptr<PaintDevice> makeDevice() override { return std::make_unique<Device>(); }
};

using LightWithoutWindowAlphaTest = LightOn<NoAlphaDevice>;
using LightWithoutAnyAlphaTest = LightOn<NoBufferDevice>;

TEST_F(LightWithoutWindowAlphaTest, ShadowsAreDrawnInABufferOfTheirOwn) {
    addLamp(0.0F, 0.0F, lightOf(300.0F, white, true));
    auto* reader = new LightReaderAdd;
    SceneObject* seen = addLamp(-100.0F, 50.0F, lightOf(0.0F, black, false));
    seen->addAddition(reader);
    seen->update();
    addSquare(100.0F, 0.0F, 20.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    for (int i = 0; i < 2; ++i) {
        draw();
        expectShadowRightOfBlocker();
        EXPECT_EQ(reader->red, 255);
    }
}

TEST_F(LightWithoutAnyAlphaTest, LightsShineAsIfNothingStoodInTheirWay) {
    addLamp(0.0F, 0.0F, lightOf(300.0F, white, true));
    addSquare(100.0F, 0.0F, 20.0F, 0.0F, 1.0F, 1.0F, 1.0F);
    draw();
    expectAt(-200.0F, 0.0F, white);
    expectAt(200.0F, 0.0F, white);
}

} // namespace
