#include "GlfwWindow.h"

#include <GLFW/glfw3.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace platform {

static_assert(released == GLFW_RELEASE && pressed == GLFW_PRESS);
static_assert(leftMouseButton == GLFW_MOUSE_BUTTON_LEFT &&
              rightMouseButton == GLFW_MOUSE_BUTTON_RIGHT);
static_assert(keySpace == GLFW_KEY_SPACE && keyEscape == GLFW_KEY_ESCAPE &&
              keyRight == GLFW_KEY_RIGHT && keyLeft == GLFW_KEY_LEFT && keyDown == GLFW_KEY_DOWN &&
              keyUp == GLFW_KEY_UP && keyF4 == GLFW_KEY_F4 && keyLeftShift == GLFW_KEY_LEFT_SHIFT &&
              keyLeftAlt == GLFW_KEY_LEFT_ALT);

namespace {

constexpr std::size_t maxVideoModes = 100; // what the options menu has room for

// GLFW calls back without a context of ours, also before a window exists.
std::string& latestError() {
    static std::string error;
    return error;
}

// Calls into a GLFW that did not start must not hide why it did not.
void rememberError(int code, const char* description) {
    if (code != GLFW_NOT_INITIALIZED) {
        latestError() = description;
    }
}

void setHints(const WindowRequest& request) {
    glfwDefaultWindowHints();
    glfwWindowHint(GLFW_ALPHA_BITS, 8); // masks are drawn through destination alpha
    glfwWindowHint(GLFW_DEPTH_BITS, 32);
    glfwWindowHint(GLFW_STENCIL_BITS, 0);
    glfwWindowHint(GLFW_SAMPLES, request.samples);
}

} // namespace

GlfwWindow::GlfwWindow() {
    glfwSetErrorCallback(rememberError);
    glfwInit(); // a failure shows when the window is opened
}

GlfwWindow::~GlfwWindow() {
    terminate();
}

std::vector<VideoMode> GlfwWindow::videoModes() {
    std::vector<VideoMode> modes;
    GLFWmonitor* monitor = glfwGetPrimaryMonitor();
    if (monitor == nullptr) {
        return modes;
    }
    int count = 0;
    const GLFWvidmode* all = glfwGetVideoModes(monitor, &count);
    for (int i = 0; i < count && modes.size() < maxVideoModes; ++i) {
        modes.push_back(
            {all[i].width, all[i].height, all[i].redBits, all[i].greenBits, all[i].blueBits});
    }
    return modes;
}

bool GlfwWindow::open(const WindowRequest& request) {
    setHints(request);
    GLFWmonitor* monitor = request.fullscreen ? glfwGetPrimaryMonitor() : nullptr;
    handle = glfwCreateWindow(request.width, request.height, "", monitor, nullptr);
    if (handle == nullptr) {
        return false;
    }
    glfwSetWindowSizeLimits(handle, request.smallestSide, request.smallestSide, GLFW_DONT_CARE,
                            GLFW_DONT_CARE);
    glfwMakeContextCurrent(handle);
    glfwSetInputMode(handle, GLFW_STICKY_KEYS, GLFW_FALSE);
    glfwSetInputMode(handle, GLFW_STICKY_MOUSE_BUTTONS, GLFW_TRUE);
    installCallbacks();
    return true;
}

std::string GlfwWindow::failure() {
    return latestError();
}

void GlfwWindow::installCallbacks() {
    static const auto self = [](GLFWwindow* window) {
        return static_cast<GlfwWindow*>(glfwGetWindowUserPointer(window));
    };
    glfwSetWindowUserPointer(handle, this);
    glfwSetKeyCallback(handle, [](GLFWwindow* window, int key, int, int action, int) {
        const auto& receiver = self(window)->events.key;
        if (receiver && action != GLFW_REPEAT && key != GLFW_KEY_UNKNOWN) {
            receiver(key, action);
        }
    });
    glfwSetMouseButtonCallback(handle, [](GLFWwindow* window, int button, int action, int) {
        const auto& receiver = self(window)->events.mouseButton;
        if (receiver) {
            receiver(button, action);
        }
    });
    glfwSetCursorPosCallback(handle, [](GLFWwindow* window, double, double) {
        const auto& receiver = self(window)->events.mouseMoved;
        if (receiver) {
            receiver();
        }
    });
    glfwSetScrollCallback(
        handle, [](GLFWwindow* window, double, double clicks) { self(window)->scrolled(clicks); });
    glfwSetWindowSizeCallback(handle, [](GLFWwindow* window, int width, int height) {
        const auto& receiver = self(window)->events.resized;
        if (receiver) {
            receiver(width, height);
        }
    });
    glfwSetWindowIconifyCallback(handle, [](GLFWwindow* window, int minimised) {
        self(window)->iconified(minimised == GLFW_TRUE);
    });
}

void GlfwWindow::scrolled(double clicks) {
    const int before = static_cast<int>(std::floor(wheel));
    wheel += clicks;
    const int now = static_cast<int>(std::floor(wheel));
    if (now != before && events.wheel) {
        events.wheel(now);
    }
}

// X11 keeps the size of a minimised window and reports no change of it.
void GlfwWindow::iconified(bool minimised) {
    if (!events.resized) {
        return;
    }
    int width = 0;
    int height = 0;
    if (!minimised) {
        getSize(width, height);
    }
    events.resized(width, height);
}

void GlfwWindow::terminate() {
    handle = nullptr;
    glfwTerminate(); // destroys the window too
}

bool GlfwWindow::isOpen() {
    return handle != nullptr && glfwWindowShouldClose(handle) == 0;
}

void GlfwWindow::setTitle(const char* title) {
    if (handle != nullptr) {
        glfwSetWindowTitle(handle, title);
    }
}

void GlfwWindow::setSwapInterval(int interval) {
    if (handle != nullptr) {
        glfwSwapInterval(interval);
    }
}

void GlfwWindow::getSize(int& width, int& height) {
    width = 0;
    height = 0;
    if (handle != nullptr) {
        glfwGetWindowSize(handle, &width, &height);
    }
}

void GlfwWindow::setSize(int width, int height) {
    if (handle != nullptr) {
        glfwSetWindowSize(handle, width, height);
    }
}

void GlfwWindow::minimise() {
    if (handle != nullptr) {
        glfwIconifyWindow(handle);
    }
}

void GlfwWindow::hideCursor() {
    if (handle != nullptr) {
        glfwSetInputMode(handle, GLFW_CURSOR, GLFW_CURSOR_HIDDEN);
    }
}

void GlfwWindow::swapBuffers() {
    if (handle != nullptr) {
        glfwSwapBuffers(handle);
    }
}

double GlfwWindow::time() {
    return glfwGetTime();
}

void GlfwWindow::setEvents(WindowEvents newEvents) {
    events = std::move(newEvents);
}

void GlfwWindow::pollEvents() {
    glfwPollEvents();
}

bool GlfwWindow::isKeyDown(int key) {
    return handle != nullptr && glfwGetKey(handle, key) == GLFW_PRESS;
}

bool GlfwWindow::isMouseButtonDown(int button) {
    return handle != nullptr && glfwGetMouseButton(handle, button) == GLFW_PRESS;
}

void GlfwWindow::getMousePosition(int& x, int& y) {
    double exactX = 0.0;
    double exactY = 0.0;
    if (handle != nullptr) {
        glfwGetCursorPos(handle, &exactX, &exactY);
    }
    x = static_cast<int>(std::floor(exactX));
    y = static_cast<int>(std::floor(exactY));
}

void GlfwWindow::setMousePosition(int x, int y) {
    if (handle != nullptr) {
        glfwSetCursorPos(handle, x, y);
    }
}

bool GlfwWindow::isJoystickPresent() {
    return glfwJoystickPresent(GLFW_JOYSTICK_1) == GLFW_TRUE;
}

// The game counts axis 1 upwards and the pointer's axis 3 downwards; GLFW counts both downwards.
void GlfwWindow::readJoystick(std::array<float, joystickAxisCount>& axes,
                              std::array<std::uint8_t, joystickButtonCount>& buttons) {
    axes.fill(0.0F);
    buttons.fill(0);
    GLFWgamepadstate pad;
    if (glfwGetGamepadState(GLFW_JOYSTICK_1, &pad) == GLFW_TRUE) {
        const float leftTrigger = pad.axes[GLFW_GAMEPAD_AXIS_LEFT_TRIGGER];
        const float rightTrigger = pad.axes[GLFW_GAMEPAD_AXIS_RIGHT_TRIGGER];
        axes = {pad.axes[GLFW_GAMEPAD_AXIS_LEFT_X], -pad.axes[GLFW_GAMEPAD_AXIS_LEFT_Y],
                (leftTrigger - rightTrigger) * 0.5F, pad.axes[GLFW_GAMEPAD_AXIS_RIGHT_Y],
                pad.axes[GLFW_GAMEPAD_AXIS_RIGHT_X]};
        buttons = {pad.buttons[GLFW_GAMEPAD_BUTTON_A],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_B],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_X],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_Y],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_LEFT_BUMPER],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_RIGHT_BUMPER],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_BACK],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_START],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_LEFT_THUMB],
                   pad.buttons[GLFW_GAMEPAD_BUTTON_RIGHT_THUMB]};
        return;
    }
    int count = 0;
    const float* rawAxes = glfwGetJoystickAxes(GLFW_JOYSTICK_1, &count);
    std::copy_n(rawAxes, std::min(count, joystickAxisCount), axes.begin());
    axes[1] = -axes[1];
    const unsigned char* rawButtons = glfwGetJoystickButtons(GLFW_JOYSTICK_1, &count);
    std::copy_n(rawButtons, std::min(count, joystickButtonCount), buttons.begin());
}

} // namespace platform
