#include "support/EngineFixture.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/TextureStore.h"
#include "graphicsModule/TransformGraphicsObject.h"

#include <cmath>
#include <vector>

namespace {

constexpr float textureWidth = 32.0F;
constexpr float textureHeight = 8.0F;

class GraphicsObjectTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        // Uncompressed, 24 bits a pixel.
        std::string picture("\0\0\2\0\0\0\0\0\0\0\0\0\x20\0\x08\0\x18\0", 18);
        picture.append(32 * 8 * 3, '\x7F');
        directory.write("data/brick.tga", picture);
    }

    void SetUp() override {
        EngineFixture::SetUp();
        graphicsModule().update(); // a first frame, which finds out what is in view
    }

    int brick() const { return textureStore().find("brick.tga"); }
};

GraphicsObjectData makeBox(float halfWidth, float halfHeight, float parallax = 1.0F) {
    return makeBoxData(halfWidth, halfHeight, -1, 0.0F, parallax, 1, 1.0F, 1.0F, 1.0F, 1.0F);
}

void turn(GraphicsObject& object, float angle) {
    object.getTransformRef().getBasis().setEulerZYX(0.0F, 0.0F, angle);
}

void expectBounds(const Bounds& bounds, float left, float bottom, float right, float top) {
    EXPECT_NEAR(bounds.left, left, 1e-3F);
    EXPECT_NEAR(bounds.bottom, bottom, 1e-3F);
    EXPECT_NEAR(bounds.right, right, 1e-3F);
    EXPECT_NEAR(bounds.top, top, 1e-3F);
}

TEST_F(GraphicsObjectTest, BoundsFollowTheTurnOfTheTransformButNotItsScale) {
    GraphicsObjectData data;
    data.vertices = {0.0F, 0.0F, 0.0F, 10.0F, 40.0F, 10.0F, 40.0F, 0.0F};
    TransformGraphicsObject object(100.0F, 200.0F, data);
    turn(object, SIMD_HALF_PI);
    object.updateBounds();
    expectBounds(object.getBounds(), 90.0F, 200.0F, 100.0F, 240.0F);

    turn(object, -SIMD_PI * 0.75F);
    const float leg = std::sqrt(0.5F);
    object.updateBounds();
    expectBounds(object.getBounds(), 100.0F - 40.0F * leg, 200.0F - 50.0F * leg,
                 100.0F + 10.0F * leg, 200.0F);

    object.getTransformRef().getBasis() = btMatrix3x3::getIdentity().scaled({3.0F, 3.0F, 1.0F});
    object.updateBounds();
    expectBounds(object.getBounds(), 100.0F, 200.0F, 140.0F, 210.0F);

    object.getTransformRef().getBasis() = btMatrix3x3(0, 0, 0, 0, 0, 0, 0, 0, 1);
    object.updateBounds();
    expectBounds(object.getBounds(), 100.0F, 200.0F, 140.0F, 210.0F);
}

TEST_F(GraphicsObjectTest, ADistantLayerIsBoundedWhereTheCameraShowsIt) {
    graphicsModule().camera->setView(1000.0F, -200.0F, 1.0F);
    TransformGraphicsObject object(100.0F, 0.0F, makeBox(10.0F, 20.0F, 0.5F));
    object.updateBounds();
    expectBounds(object.getBounds(), 590.0F, -120.0F, 610.0F, -80.0F);
}

TEST_F(GraphicsObjectTest, WorldMappingKeepsTheTextureFixedUnderATurnedObject) {
    GraphicsObjectData data = makeBox(10.0F, 5.0F);
    data.texture = brick();
    TransformGraphicsObject object(100.0F, 50.0F, data);
    turn(object, SIMD_HALF_PI);
    object.regenerateTexcoords();
    // The lower left corner, at -10, -5, has turned to 105, 40.
    EXPECT_NEAR(object.getData().texcoords[0], (105.0F - 16.0F) / 64.0F, 1e-5F);
    EXPECT_NEAR(object.getData().texcoords[1], (40.0F - 4.0F) / 16.0F, 1e-5F);
}

TEST_F(GraphicsObjectTest, BoundsMappingStaysHalfATexelInsideTheTexture) {
    for (const float halfWidth : {0.5F, 40.0F, 3000.0F}) {
        GraphicsObjectData data = makeBox(halfWidth, 7.0F);
        data.texture = brick();
        data.texcoordMode = 0;
        data.texcoords.clear();
        TransformGraphicsObject object(123.0F, 45.0F, data);
        object.regenerateTexcoords();
        const std::vector<float>& texcoords = object.getData().texcoords;
        ASSERT_EQ(texcoords.size(), 8U);
        EXPECT_NEAR(texcoords[0], 0.5F / textureWidth, 1e-6F);
        EXPECT_NEAR(texcoords[1], 0.5F / textureHeight, 1e-6F);
        EXPECT_NEAR(texcoords[4], 1.0F - 0.5F / textureWidth, 1e-6F);
        EXPECT_NEAR(texcoords[5], 1.0F - 0.5F / textureHeight, 1e-6F);
    }
}

TEST_F(GraphicsObjectTest, AFlatPolygonAndAnUnknownTextureMapToFiniteCoordinates) {
    GraphicsObjectData data = makeBox(0.0F, 5.0F);
    data.texcoordMode = 0;
    TransformGraphicsObject object(0.0F, 0.0F, data);
    testing::internal::CaptureStdout();
    object.regenerateTexcoords();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "missing texture -1\n");
    for (const float coordinate : object.getData().texcoords) {
        EXPECT_TRUE(std::isfinite(coordinate));
    }
}

} // namespace
