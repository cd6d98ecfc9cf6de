// The joystick, made to look like keyboard and mouse.

#include "InputModule.h"
#include "InputObject.h"
#include "ModuleManager.h"

#include <cmath>
#include <utility>

namespace {

constexpr float deadZone = 0.3F;

// Axes by what they do.
constexpr std::size_t walkAxis = 0;
constexpr std::size_t duckAxis = 1; ///< Its positive side does nothing: jumping is on a button.
constexpr std::size_t pressAxis = 2;
constexpr std::size_t aimAxisY = 3;
constexpr std::size_t aimAxisX = 4;

/// Pixels that the mouse goes in this tick: about 470 a second at full deflection, at least one.
int mouseStep(float deflection, double seconds) {
    const double beyond = deflection < 0.0F ? deflection + 0.33 : deflection - 0.33;
    return static_cast<int>(seconds * 200.0 * std::fabs(beyond) * 3.5) + 1;
}

/// The same, with the sign of the deflection; 0 for an axis at rest.
int mouseWay(float deflection, double seconds) {
    if (deflection == 0.0F) {
        return 0;
    }
    return deflection < 0.0F ? -mouseStep(deflection, seconds) : mouseStep(deflection, seconds);
}

/// The side of zero that a deflection is on, before and now.
struct AxisChange {
    float before;
    float now;

    bool entersNegative() const { return before >= 0.0F && now < 0.0F; }
    bool leavesNegative() const { return before < 0.0F && now >= 0.0F; }
    bool entersPositive() const { return before <= 0.0F && now > 0.0F; }
    bool leavesPositive() const { return before > 0.0F && now <= 0.0F; }
};

} // namespace

void InputModule::updateJoystick() {
    previousAxes = axes;
    previousButtons = buttons;
    if (!platform::window().isJoystickPresent()) {
        return; // the last values stay
    }
    platform::window().readJoystick(axes, buttons);
    for (float& axis : axes) {
        if (axis > -deadZone && axis < deadZone) {
            axis = 0.0F;
        }
    }
    joystickMovesKeys();
    joystickMovesMouse();
    joystickPresses();
}

void InputModule::joystickMovesKeys() {
    const AxisChange walk{previousAxes[walkAxis], axes[walkAxis]};
    if (walk.entersNegative()) {
        keyEvent(keyLeft, platform::pressed);
    }
    if (walk.leavesNegative()) {
        keyEvent(keyLeft, platform::released);
    }
    if (walk.entersPositive()) {
        keyEvent(keyRight, platform::pressed);
    }
    if (walk.leavesPositive()) {
        keyEvent(keyRight, platform::released);
    }
    const AxisChange duck{previousAxes[duckAxis], axes[duckAxis]};
    if (duck.entersNegative()) {
        keyEvent(keyDown, platform::pressed);
    }
    if (duck.leavesNegative()) {
        keyEvent(keyDown, platform::released);
    }
}

void InputModule::joystickMovesMouse() {
    const double seconds = moduleManager().frameTime;
    const std::array ways{std::pair{0, mouseWay(axes[aimAxisY], seconds)},
                          std::pair{mouseWay(axes[aimAxisX], seconds), 0}};
    for (const auto& [dx, dy] : ways) {
        if (dx == 0 && dy == 0) {
            continue;
        }
        int x = 0;
        int y = 0;
        platform::window().getMousePosition(x, y);
        platform::window().setMousePosition(x + dx, y + dy);
        mouseEvent(lastButton, mouseAction::moved);
    }
}

void InputModule::joystickPresses() {
    const AxisChange press{previousAxes[pressAxis], axes[pressAxis]};
    if (press.entersNegative() || press.entersPositive()) {
        mouseEvent(platform::leftMouseButton, platform::pressed);
    }
    if (press.leavesNegative() || press.leavesPositive()) {
        mouseEvent(platform::leftMouseButton, platform::released);
    }

    enum class Device { mouse, keyboard };
    struct Row {
        std::size_t button;
        Device device;
        int code;
    };
    constexpr int left = platform::leftMouseButton;
    constexpr int right = platform::rightMouseButton;
    const Row rows[] = {
        {4, Device::mouse, right},
        {5, Device::mouse, right},
        {8, Device::mouse, left},
        {9, Device::mouse, right},
        {0, Device::keyboard, keyUp},
        {1, Device::keyboard, keyUp},
        {2, Device::mouse, right},
        {3, Device::mouse, right},
        {7, Device::keyboard, platform::keyEscape},
        {6, Device::keyboard, platform::keyEscape},
    };
    for (const Row& row : rows) {
        const bool isDown = buttons[row.button] != 0;
        if (isDown == (previousButtons[row.button] != 0)) {
            continue;
        }
        const int action = isDown ? platform::pressed : platform::released;
        if (row.device == Device::mouse) {
            mouseEvent(row.code, action);
        } else {
            keyEvent(row.code, action);
        }
    }
}
