#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "ProcessValues.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LockedCamera.h"
#include "graphicsModule/Painter.h"

namespace {

class CameraTest : public EngineFixture {
protected:
    void resize(int width, int height) {
        window->resize(width, height);
        window->pollEvents();
        graphicsModule().setViewport();
    }
};

TEST_F(CameraTest, WindowAndWorldAgreeWithWhatIsDrawnInAWindowOfAnyShape) {
    const FreeCamera camera(100.0F, -50.0F, 2.0F);
    painter().pushTransform();
    camera.applyTransform(1.0F);
    const PaintTransform drawn = painter().getTransform();
    painter().popTransform();
    for (const auto& [width, height] : {std::pair{1280, 800}, {640, 800}, {2000, 500}}) {
        resize(width, height);
        double left = 0.0;
        double bottom = 0.0;
        double right = 0.0;
        double top = 0.0;
        camera.getViewRect(left, bottom, right, top);
        EXPECT_NEAR(left, -220.0, 1e-6);
        EXPECT_NEAR(bottom, -250.0, 1e-6);
        EXPECT_NEAR(right, 420.0, 1e-6);
        EXPECT_NEAR(top, 150.0, 1e-6);

        double x = 0.0;
        double y = 0.0;
        camera.screenToWorld(width / 2.0, height / 2.0, x, y);
        EXPECT_NEAR(drawn.m00 * x + drawn.x, 640.0, 1e-3);
        EXPECT_NEAR(drawn.m11 * y + drawn.y, 400.0, 1e-3);
    }
}

TEST_F(CameraTest, ALockedCameraRestsHalfWayBetweenObjectAndMouse) {
    SceneObject* object = addBox(500, 300, 10, 10, 0);
    LockedCamera camera(object);
    EXPECT_FLOAT_EQ(camera.getX(), 500.0F);
    EXPECT_EQ(camera.owner, object);
    camera.update(); // the mouse stands in the centre
    EXPECT_FLOAT_EQ(camera.getX(), 500.0F);
    EXPECT_FLOAT_EQ(camera.getY(), 300.0F);

    window->setMousePosition(640 + 200, 400 - 100);
    camera.update();
    EXPECT_NEAR(camera.getX(), 510.0F, 1e-3F); // a tenth of the way
    for (int i = 0; i < 200; ++i) {
        camera.update();
    }
    EXPECT_NEAR(camera.getX(), 600.0F, 0.1F);
    EXPECT_NEAR(camera.getY(), 350.0F, 0.1F);
}

} // namespace
