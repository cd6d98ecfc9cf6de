#include "support/EngineFixture.h"

#include "ProcessValues.h"
#include "graphicsModule/FrameOrder.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"

#include <algorithm>
#include <utility>

namespace {

/// Something to be sorted.
class Probe : public GraphicsObject {
public:
    Probe(float depth, int handle) : z(depth), texture(handle) {}

    void draw() override {}
    float getZ() const override { return z; }
    void setZ(float depth) override { z = depth; }
    int getTexture() const override { return texture; }
    void getTransform(btTransform& out) const override { out.setIdentity(); }
    btTransform& getTransformRef() override { return transform; }

    float z;
    int texture;
    btTransform transform = btTransform::getIdentity();
};

class GraphicsModuleTest : public EngineFixture {
protected:
    static Colour4 screenFade() {
        Colour4 colour{};
        graphicsModule().screenFade->getColour(colour[0], colour[1], colour[2], colour[3]);
        return colour;
    }
};

using FrameOrderTest = testing::Test;

TEST_F(FrameOrderTest, ObjectsAreSortedByDepthThenTextureAndEqualOnesKeepTheirOrder) {
    std::vector<std::unique_ptr<Probe>> probes;
    std::vector<GraphicsObject*> expected;
    for (int i = 0; i < 500; ++i) {
        probes.push_back(std::make_unique<Probe>(static_cast<float>(i * 7 % 10), i * 3 % 4 - 1));
        expected.push_back(probes.back().get());
    }
    std::vector<GraphicsObject*> list = expected;
    std::stable_sort(expected.begin(), expected.end(), [](auto* a, auto* b) {
        return std::pair(a->getZ(), a->getTexture()) < std::pair(b->getZ(), b->getTexture());
    });
    for (int frame = 0; frame < 3; ++frame) {
        sortForDrawing(list);
        EXPECT_EQ(list, expected);
    }
}

TEST_F(GraphicsModuleTest, ThePictureFitsIntoAWindowOfAnyShape) {
    struct Row {
        int width, height;
        WindowMode mode;
        std::array<int, 4> viewport;
    };
    const Row rows[] = {
        {1280, 800, WindowMode::window, {0, 0, 1280, 800}},
        {640, 512, WindowMode::window, {0, 56, 640, 400}},
        {1001, 999, WindowMode::window, {0, 186, 1001, 625}},
        {1920, 800, WindowMode::window, {320, 0, 1280, 800}},
        {1920, 800, WindowMode::fullscreen, {0, 0, 1920, 800}},
        {1, 1, WindowMode::window, {0, 0, 1, 0}},
    };
    for (const Row& row : rows) {
        windowMode = row.mode;
        window->resize(row.width, row.height);
        window->pollEvents();
        graphicsModule().setViewport();
        EXPECT_EQ(device->viewport, row.viewport) << row.width << " by " << row.height;
        EXPECT_EQ(letterboxX, row.viewport[0]);
        EXPECT_EQ(letterboxY, row.viewport[1]);
        EXPECT_EQ(windowWidth, row.width);
        graphicsModule().update();
    }
    window->resize(0, 0);
    window->pollEvents();
    graphicsModule().setViewport();
    EXPECT_EQ(windowWidth, 1) << "a minimised window keeps its last size";
    graphicsModule().update();
}

TEST_F(GraphicsModuleTest, ASteadyFrameHasTheFewestDraws) {
    graphicsModule().update();
    device->forget();
    graphicsModule().update();
    // The light map, then both overlays and the cursor, which share their state.
    EXPECT_EQ(device->drawCount, 2);
    EXPECT_EQ(device->clearCount, 2);
}

TEST_F(GraphicsModuleTest, EveryRunBeginsWithAFadeFromBlackOfAHundredSteps) {
    GraphicsModule& module = graphicsModule();
    EXPECT_EQ(screenFade(), (Colour4{0.0F, 0.0F, 0.0F, 1.0F}));
    step(99);
    EXPECT_FALSE(module.fadesFinished());
    step(1);
    EXPECT_TRUE(module.fadesFinished());
    module.screenFadeTarget = {1.0F, 1.0F, 1.0F, 1.0F};
    step(50);
    EXPECT_NEAR(screenFade()[3], 0.5F, 1e-4F);
    step(51);
    EXPECT_EQ(screenFade(), module.screenFadeTarget);
}

TEST_F(GraphicsModuleTest, AmbientLightMovesAHundredthAStepInEachChannel) {
    GraphicsModule& module = graphicsModule();
    module.ambient = {0.2F, 0.5F, 0.305F};
    module.ambientTarget = {0.0F, 0.6F, 0.3F};
    step(1);
    EXPECT_FLOAT_EQ(module.ambient[0], 0.19F);
    EXPECT_FLOAT_EQ(module.ambient[1], 0.51F);
    EXPECT_EQ(module.ambient[2], 0.3F);
    step(18);
    EXPECT_NE(module.ambient[0], 0.0F);
    step(1);
    EXPECT_EQ(module.ambient, module.ambientTarget);
}

} // namespace
