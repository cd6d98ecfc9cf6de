#include "support/EngineFixture.h"

#include "ProcessValues.h"
#include "graphicsModule/FrameOrder.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// Says when it is drawn.
class Probe : public GraphicsObject {
public:
    explicit Probe(float depth, int handle = -1) : z(depth), texture(handle) {}

    void draw() override {
        if (onDraw) {
            onDraw();
        }
    }
    float getZ() const override { return z; }
    void setZ(float depth) override { z = depth; }
    int getTexture() const override { return texture; }
    void getTransform(btTransform& out) const override { out.setIdentity(); }
    btTransform& getTransformRef() override { return transform; }

    float z;
    int texture;
    std::function<void()> onDraw;
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
    Probe sky(-3.0F, 9);
    Probe wall(0.0F, 2);
    Probe firstLeaf(0.0F, 1);
    Probe secondLeaf(0.0F, 1);
    Probe plain(0.0F, -1);
    std::vector<GraphicsObject*> list{&wall, &firstLeaf, &sky, &secondLeaf, &plain};
    for (int frame = 0; frame < 3; ++frame) {
        sortForDrawing(list);
        EXPECT_THAT(list, ElementsAre(&sky, &plain, &firstLeaf, &secondLeaf, &wall));
    }
}

TEST_F(FrameOrderTest, AListInFullDisorderIsSortedStablyToo) {
    constexpr int count = 500;
    std::vector<std::unique_ptr<Probe>> probes;
    std::vector<GraphicsObject*> list;
    for (int i = 0; i < count; ++i) {
        probes.push_back(std::make_unique<Probe>(static_cast<float>((count - i) / 5)));
        probes.back()->transform.getOrigin().setX(static_cast<float>(i));
        list.push_back(probes.back().get());
    }
    sortForDrawing(list);
    for (std::size_t i = 1; i < list.size(); ++i) {
        const float before = list[i - 1]->getZ();
        const float z = list[i]->getZ();
        ASSERT_LE(before, z);
        if (before == z) {
            ASSERT_LT(list[i - 1]->getTransformRef().getOrigin().x(),
                      list[i]->getTransformRef().getOrigin().x());
        }
    }
}

TEST_F(GraphicsModuleTest, EachSliceIsDrawnInItsPlaceOfTheFrame) {
    GraphicsModule& module = graphicsModule();
    std::vector<float> order;
    for (const float z : {1.5F, 1.0F, -3.0F, 1.25F}) {
        auto* probe = new Probe(z);
        probe->onDraw = [this, &order, z] {
            order.push_back(z);
            EXPECT_EQ(device->state.alphaTest, z <= 1.0F);
            EXPECT_EQ(device->state.blend, BlendMode::alpha);
            EXPECT_TRUE(device->state.depthTest);
        };
        module.addObject(probe);
    }
    module.screenFade->setColour(0.0F, 0.0F, 0.0F, 0.0F);
    module.sceneFade->setColour(0.0F, 0.0F, 0.0F, 0.0F);
    module.ambient = {0.1F, 0.2F, 0.3F};
    device->keepsDraws = true;
    device->forget();
    module.update();

    EXPECT_THAT(order, ElementsAre(-3.0F, 1.0F, 1.25F, 1.5F));
    EXPECT_THAT(device->clears, ElementsAre(std::array{0.1F, 0.2F, 0.3F, 0.0F},
                                            std::array{0.1F, 0.2F, 0.3F, 1.0F}));
    EXPECT_EQ(device->copyCount, 1);
    ASSERT_EQ(device->draws.size(), 2U); // the light map over the scene, and the cursor
    EXPECT_EQ(device->draws[0].state.blend, BlendMode::multiply);
    EXPECT_EQ(device->draws[0].state.depthFunction, DepthFunction::greaterOrEqual);
    EXPECT_EQ(device->state.depthFunction, DepthFunction::lessOrEqual);
    EXPECT_EQ(window->swaps, 1);
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
        EXPECT_EQ(device->state.viewport, row.viewport) << row.width << " by " << row.height;
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
