#include "Language.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/Text.h"
#include "inputModule/InputFrame.h"
#include "inputModule/InputModule.h"
#include "support/EngineFixture.h"

#include <functional>
#include <vector>

namespace {

/// Writes down what it is offered, under its name.
class Recorder : public InputObject {
public:
    Recorder(std::string label, std::string& journal, GraphicsObject* shown = nullptr)
        : InputObject(shown),
          name(std::move(label)),
          log(journal) {}

    void mouse(float x, float y, int button, int action) override {
        takeFocus();
        lastX = x;
        lastY = y;
        log += name + std::to_string(button) + ":" + std::to_string(action) + " ";
        if (onMouse) {
            onMouse();
        }
    }
    void key(int key, int action) override {
        log += name + static_cast<char>(key) + std::to_string(action) + " ";
    }
    void lostFocus() override { log += name + "lost "; }

    std::function<void()> onMouse; // may delete this object
    float lastX = 0;
    float lastY = 0;

private:
    std::string name;
    std::string& log;
};

class InputDispatchTest : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        delete inputModule().game;
        world = new Recorder("world", log);
        inputModule().game = world;
    }

    /// A frame from `left` to `left` + 100, 0 to 100, all of which is one recorder.
    InputFrame* openFrame(const std::string& name, float left, Recorder** child = nullptr) {
        InputFrame* frame = makeFrame(0, 0, 100, 100);
        auto* recorder =
            new Recorder(name, log, new InterfaceGraphicsObject(0.0F, 0.0F, 100.0F, 100.0F, -1));
        frame->addChild(0, 0, recorder);
        inputModule().addFrame(frame, left, 0);
        if (child != nullptr) {
            *child = recorder;
        }
        return frame;
    }

    /// The journal of what an event at a logical point brings. The window has the logical size.
    std::string eventAt(float x, float y, int button, int action) {
        log.clear();
        window->setMousePosition(static_cast<int>(x), static_cast<int>(800 - y));
        inputModule().mouseEvent(button, action);
        return log;
    }

    std::string ticks(int count = 1) {
        log.clear();
        for (int i = 0; i < count; ++i) {
            inputModule().update();
        }
        return log;
    }

    std::string log;
    Recorder* world = nullptr;
};

} // namespace

TEST_F(InputDispatchTest, TheHighestFrameTakesTheEventAndClicksAndWheelRaiseAFrame) {
    InputFrame* a = openFrame("a", 0);
    InputFrame* b = openFrame("b", 50);
    EXPECT_EQ(eventAt(75, 50, 0, 1), "b0:1 ");
    EXPECT_EQ(eventAt(25, 50, 0, 0), "blost a0:0 "); // b's frame has it, but no child lies there
    ticks();
    EXPECT_EQ(eventAt(75, 50, 0, 1), "alost a0:1 ");
    EXPECT_EQ(inputModule().getFrames(), (std::vector{a, b}));
    eventAt(125, 50, 0, mouseAction::moved);
    ticks();
    EXPECT_EQ(inputModule().getFrames(), (std::vector{a, b})) << "a move raises nothing";
    log.clear();
    inputModule().wheelEvent(-1);
    EXPECT_EQ(log, "blost b9:8 ");
    ticks();
    EXPECT_EQ(inputModule().getFrames(), (std::vector{b, a}));
    log.clear();
    inputModule().wheelEvent(0);
    inputModule().wheelEvent(0); // no turn, no event
    EXPECT_EQ(log, "blost b9:9 ");
}

TEST_F(InputDispatchTest, WhoGotThePressGetsTheReleaseToo) {
    openFrame("a", 0);
    eventAt(50, 50, 0, 1);
    EXPECT_EQ(eventAt(500, 500, 0, 0), "alost world0:0 ");
    eventAt(500, 500, 1, 1);
    EXPECT_EQ(eventAt(50, 50, 1, 0), "world1:0 worldlost a1:0 ");
    EXPECT_EQ(inputModule().lastButton, 1);
}

TEST_F(InputDispatchTest, ADragGoesToItsHolderWhateverLiesUnderTheMouse) {
    Recorder* holder = nullptr;
    openFrame("a", 0);
    openFrame("b", 200, &holder);
    eventAt(250, 50, 0, 1);
    inputModule().grabbed = holder;
    inputModule().dragging = 1;
    EXPECT_EQ(eventAt(50, 50, 0, mouseAction::moved), "b0:3 ");
    inputModule().keyEvent('K', 1);
    EXPECT_EQ(log, "b0:3 bK1 ");
    eventAt(50, 50, 0, 0);
    EXPECT_EQ(inputModule().grabbed, nullptr);
    EXPECT_EQ(inputModule().dragging, 0);
    log.clear();
    inputModule().keyEvent('K', 0);
    EXPECT_EQ(log, "worldK0 ");
}

TEST_F(InputDispatchTest, AnEventMayCloseTheFramesThatItGoesThrough) {
    Recorder* closer = nullptr;
    openFrame("low", 0, &closer);
    openFrame("high", 50);
    eventAt(25, 50, 0, 1);
    closer->onMouse = [] { inputModule().removeAllFrames(); };
    eventAt(75, 50, 0, 0); // both frames lie here; the lower one has the press
    EXPECT_EQ(log, "lowlost low0:0 lowlost ");
    EXPECT_TRUE(inputModule().getFrames().empty());
    EXPECT_EQ(inputModule().focus, nullptr);
    EXPECT_EQ(eventAt(75, 50, 0, 0), "world0:0 ");
}

TEST_F(InputDispatchTest, WindowPixelsBecomeLogicalUnitsBetweenTheBars) {
    const auto pointAt = [this](int x, int y) {
        window->setMousePosition(x, y);
        inputModule().mouseEvent(0, mouseAction::moved);
        return std::pair(world->lastX, world->lastY);
    };
    EXPECT_EQ(pointAt(320, 0), std::pair(320.0F, 800.0F));
    EXPECT_EQ(pointAt(320, 800), std::pair(320.0F, 0.0F));
    windowWidth = 1920;
    windowHeight = 1080;
    letterboxX = 96;
    EXPECT_EQ(pointAt(96, 1080), std::pair(0.0F, 0.0F));
    EXPECT_EQ(pointAt(1824, 0), std::pair(1280.0F, 800.0F));
    EXPECT_LT(pointAt(10, 0).first, 0.0F);
    EXPECT_EQ(pointAt(3000, -50), pointAt(1920, 0));
    int x = 0;
    int y = 0;
    window->getMousePosition(x, y);
    EXPECT_EQ(std::pair(x, y), std::pair(1920, 0)); // put back into the window
}

TEST_F(InputDispatchTest, TheNextKeyIsBoundSavedAndShown) {
    Text label("", 0, 0, 0, 1, 1, 1);
    inputModule().rebinding = 3;
    inputModule().rebindLabel = &label;
    EXPECT_EQ(eventAt(50, 50, 0, 1), "");
    log.clear();
    inputModule().keyEvent('Q', 0); // a release counts as well
    EXPECT_EQ(log, "");
    EXPECT_EQ(inputModule().keyLeft, 'Q');
    EXPECT_EQ(label.getText(), text(390) + " Q");
    EXPECT_NE(moduleManager().settingsText.find("KEYLEFT Q\r\n"), std::string::npos);

    inputModule().rebinding = 1;
    inputModule().keyEvent(platform::keyEscape, 1);
    EXPECT_EQ(inputModule().keyUp, 'W');
    EXPECT_EQ(label.getText(), text(390) + " W");
    EXPECT_EQ(inputModule().rebinding, 0);
    inputModule().keyEvent('Q', 1);
    EXPECT_EQ(log, "worldQ1 ");
}

TEST_F(InputDispatchTest, AJoystickPressesAndReleasesKeysAndMouseButtons) {
    window->joystickPresent = true;
    // The events of a tick but for the hover of the mouse.
    const auto tickWith = [this](std::size_t axis, float deflection) {
        window->joystickAxes[axis] = deflection;
        const std::string events = ticks();
        const std::string hover = "world-1:3 ";
        return events.starts_with(hover) ? events.substr(hover.size()) : events;
    };
    window->joystickButtons[0] = 1;
    EXPECT_EQ(tickWith(0, 0), "worldW1 ");
    EXPECT_EQ(tickWith(0, 0), "");
    window->joystickButtons[0] = 0;
    EXPECT_EQ(tickWith(0, -1), "worldA1 worldW0 ");
    EXPECT_EQ(tickWith(0, -0.5F), "");
    EXPECT_EQ(tickWith(0, 1), "worldA0 worldD1 ");
    EXPECT_EQ(tickWith(0, 0.29F), "worldD0 "); // within the dead zone
    EXPECT_EQ(tickWith(0, 0.3F), "worldD1 ");  // at its border
    EXPECT_EQ(tickWith(2, 1), "world0:1 ");
    EXPECT_EQ(tickWith(2, -1), "world0:1 world0:0 ");
}
