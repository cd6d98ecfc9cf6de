#include "support/RecordingDevice.h"

#include "graphicsModule/Painter.h"

#include <gtest/gtest.h>

namespace {

class PainterTest : public testing::Test {
protected:
    PainterTest() {
        auto recorder = std::make_unique<RecordingDevice>();
        device = recorder.get();
        device->keepsDraws = true;
        painter = std::make_unique<Painter>(std::move(recorder));
    }

    /// Corners of a square of side 2 round its origin, repeated as often as a shape needs them.
    static ShapeArrays square(std::size_t count = 4) {
        static std::vector<float> positions;
        static std::vector<float> texcoords;
        static std::vector<float> colours;
        constexpr std::array<float, 8> corners{-1, -1, -1, 1, 1, 1, 1, -1};
        positions.clear();
        for (std::size_t i = 0; i < 2 * count; ++i) {
            positions.push_back(corners[i % corners.size()]);
        }
        texcoords.assign(2 * count, 0.25F);
        colours.assign(4 * count, 0.5F);
        return {positions.data(), texcoords.data(), colours.data(), count};
    }

    std::unique_ptr<Painter> painter;
    RecordingDevice* device; // owned by the painter
};

using Indices = std::vector<std::uint32_t>;

TEST_F(PainterTest, ShapesOfOneStateBecomeOneDrawInTheirOrder) {
    for (int i = 0; i < 100; ++i) {
        painter->translate(10.0F, 0.0F, 0.0F);
        painter->polygon(square(), {0.5F, 1.0F, 2.0F});
    }
    EXPECT_EQ(device->drawCount, 0);
    painter->flush();
    painter->flush();
    ASSERT_EQ(device->drawCount, 1);
    const RecordingDevice::Draw& draw = device->draws.front();
    ASSERT_EQ(draw.vertices.size(), 400U);
    ASSERT_EQ(draw.indices.size(), 600U);
    const PaintVertex& last = draw.vertices[398];
    EXPECT_FLOAT_EQ(last.x, 1001.0F);
    EXPECT_FLOAT_EQ(last.y, 1.0F);
    EXPECT_FLOAT_EQ(last.v, 0.25F);
    EXPECT_FLOAT_EQ(last.r, 0.25F);
    EXPECT_FLOAT_EQ(last.b, 1.0F);
    EXPECT_FLOAT_EQ(last.a, 0.5F);
    EXPECT_EQ(draw.indices.back(), 399U);
}

TEST_F(PainterTest, AStateChangeEndsTheRunAndARepeatedOneCostsNothing) {
    const std::vector<std::function<void()>> changes = {
        [&] { painter->setBlend(BlendMode::add); },
        [&] { painter->setDepthTest(true); },
        [&] { painter->setDepthFunction(DepthFunction::greaterOrEqual); },
        [&] { painter->setAlphaTest(true); },
        [&] { painter->setColourMask(true, false); },
        [&] { painter->setColourMask(false, false); },
        [&] { painter->setWireframe(true); },
        [&] { painter->setViewport(1, 2, 3, 4); },
        [&] { painter->setScissor(1, 2, 3, 4); },
        [&] { painter->setScissor(1, 2, 3, -4); },
    };
    for (const auto& change : changes) {
        painter->polygon(square());
        device->forget();
        change();
        EXPECT_EQ(device->drawCount, 1);
        EXPECT_EQ(device->stateChangeCount, 1);
        painter->polygon(square());
        change();
        EXPECT_EQ(device->drawCount, 1);
        EXPECT_EQ(device->stateChangeCount, 1);
    }
    EXPECT_EQ(device->scissor, (std::array{1, 2, 3, 0}));

    painter->polygon(square());
    painter->setUp(1280.0F, 800.0F); // a new context knows nothing of what was set
    device->forget();
    painter->setDepthTest(true);
    EXPECT_EQ(device->stateChangeCount, 1);
}

TEST_F(PainterTest, WhatWasCollectedReachesTheDeviceBeforeItIsUsedDirectly) {
    painter->polygon(square());
    painter->device().copyToBoundTexture(1, 1);
    EXPECT_EQ(device->drawCount, 1);
    painter->polygon(square());
    painter->clear(0.0F, 0.0F, 0.0F, 1.0F);
    EXPECT_EQ(device->drawCount, 2);
    painter->polygon(square());
    painter->bindTexture(3);
    EXPECT_EQ(device->drawCount, 3);
    EXPECT_EQ(device->draws.back().texture, -1);
}

TEST_F(PainterTest, EveryShapeHasTheIndicesOfItsKind) {
    painter->polygon(square(5));
    painter->triangles(square(7)); // the last one is no triangle
    painter->quadStrip(square(6));
    painter->flush();
    EXPECT_EQ(device->draws.back().indices,
              (Indices{0,  1,  2,  0,  2,  3,  0,  3,  4,  5,  6,  7,  8, 9,
                       10, 11, 12, 14, 11, 14, 13, 13, 14, 16, 13, 16, 15}));
    painter->lineLoop(square(3));
    painter->flush();
    EXPECT_EQ(device->draws.back().primitive, PaintPrimitive::lines);
    EXPECT_EQ(device->draws.back().indices, (Indices{0, 1, 1, 2, 2, 0}));
    painter->lineLoop(square(1));
    painter->flush();
    EXPECT_EQ(device->draws.back().primitive, PaintPrimitive::points);
    EXPECT_EQ(device->draws.back().indices, (Indices{0}));

    device->forget();
    for (const std::size_t tooFew : {0U, 1U, 2U}) {
        painter->polygon(square(tooFew));
        painter->triangles(square(tooFew));
        painter->quadStrip(square(tooFew));
    }
    painter->lineLoop(square(0));
    painter->lines({});
    painter->points({});
    painter->flush();
    EXPECT_EQ(device->drawCount, 0);
}

} // namespace
