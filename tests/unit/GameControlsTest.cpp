#include "PhysicsBodies.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/MultiGraphics.h"
#include "inputModule/GameInput.h"
#include "inputModule/InputFrame.h"
#include "inputModule/LambdaButton.h"
#include "inputModule/SliderGraphics.h"
#include "inputModule/SliderSetButton.h"
#include "support/EngineFixture.h"

namespace {

class GameControlsTest : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        movementLocked = 0;
    }
    void TearDown() override {
        movementLocked = 0;
        EngineFixture::TearDown();
    }

    static void press(int key) { inputModule().keyEvent(key, platform::pressed); }
    static void release(int key) { inputModule().keyEvent(key, platform::released); }

    /// An event at a logical point. The window has the logical size.
    void mouseAt(float x, float y, int button, int action) {
        window->setMousePosition(static_cast<int>(x), static_cast<int>(800 - y));
        inputModule().mouseEvent(button, action);
    }

    /// A button of 100 by 50 in a frame of its own at 0, 0.
    LambdaButton* openButton(std::function<void()> action) {
        InputFrame* frame = makeFrame(0, 0, 200, 50);
        auto* face = new InterfaceGraphicsObject(0.0F, 0.0F, 100.0F, 50.0F, -1);
        auto* button = new LambdaButton(face, std::move(action));
        frame->addChild(0, 0, button);
        inputModule().addFrame(frame, 0, 0);
        return button;
    }
};

} // namespace

TEST_F(GameControlsTest, KeysMoveTheCharacter) {
    Player* player = addPlayer(0, 0);
    const struct {
        int key;
        std::uint32_t bit;
    } rows[] = {{'W', playerKey::up},
                {platform::keySpace, playerKey::up},
                {'A', playerKey::left},
                {platform::keyRight, playerKey::right},
                {'X', 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.key);
        press(row.key);
        EXPECT_EQ(player->keys, row.bit);
        release(row.key);
        EXPECT_EQ(player->keys, 0U);
    }
    press('W');
    press(platform::keySpace);
    release(platform::keySpace);
    EXPECT_EQ(player->keys, 0U) << "one and the same bit";
}

TEST_F(GameControlsTest, ALockStopsTheLegsAndLeavesTheHands) {
    Player* player = addPlayer(0, 0);
    press('D');
    movementLocked = 1;
    mouseAt(900, 500, 0, 1);
    EXPECT_EQ(player->keys, playerKey::right | playerKey::primary);
    press('W');
    EXPECT_EQ(player->keys, playerKey::primary);
    movementLocked = 0;
    release('X');
    EXPECT_EQ(player->keys, playerKey::primary) << "a key held through the lock is pressed again";
}

TEST_F(GameControlsTest, AButtonFiresOnAnyReleaseAndMayDeleteItself) {
    int fired = 0;
    openButton([&fired] { ++fired; });
    mouseAt(50, 25, 0, 1);
    EXPECT_EQ(fired, 0);
    mouseAt(50, 25, 0, 0);
    mouseAt(50, 25, 1, 0); // the right button, without a press
    EXPECT_EQ(fired, 2);

    const std::string captured = "a text that is too long to lie inside of the callable";
    std::string told;
    inputModule().removeAllFrames();
    openButton([captured, &told] {
        inputModule().removeAllFrames();
        told = captured;
    });
    mouseAt(50, 25, 0, 0);
    EXPECT_EQ(told, captured);
}

TEST_F(GameControlsTest, ASliderSetsItsValueWhileDraggedAndItsHandleFollows) {
    brightness = 1.9F;
    MultiGraphics* look = makeSliderGraphics(0, 0, 100, 25);
    auto* slider = new SliderSetButton<float>(look, 1.0F, 1.9F);
    const GraphicsObject& handle = *look->getChildren().back();
    const auto handleMiddle = [&handle] { return (handle.getLeft() + handle.getRight()) / 2; };

    InputFrame* frame = makeFrame(0, 0, 200, 50);
    frame->addChild(50, 10, slider);
    inputModule().addFrame(frame, 100, 100);
    mouseAt(250, 120, 0, 1);
    EXPECT_NEAR(brightness, 1.9F, 1e-5);
    mouseAt(200, 500, 0, mouseAction::moved); // the drag may leave the slider
    EXPECT_NEAR(brightness, 1.45F, 1e-5);
    inputModule().update();
    EXPECT_NEAR(handleMiddle(), 200, 1e-3);
    mouseAt(0, 500, 0, mouseAction::moved);
    EXPECT_EQ(brightness, 1.0F);
    mouseAt(0, 500, 0, 0);
    mouseAt(200, 120, 0, mouseAction::moved);
    EXPECT_EQ(brightness, 1.0F) << "the drag is over";
    brightness = 1.9F;
    inputModule().update();
    EXPECT_NEAR(handleMiddle(), 250, 1e-3);
}
