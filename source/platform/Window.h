#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The one window of the program with its input devices and its clock. The game sees only this
/// interface; `GlfwWindow` stands behind it in the program, a scripted twin in tests.
namespace platform {

constexpr int released = 0;
constexpr int pressed = 1;

constexpr int leftMouseButton = 0;
constexpr int rightMouseButton = 1;

// Key codes: letters and digits are their upper-case ASCII codes, the rest are named here.
constexpr int keySpace = 32;
constexpr int keyEscape = 256;
constexpr int keyRight = 262;
constexpr int keyLeft = 263;
constexpr int keyDown = 264;
constexpr int keyUp = 265;
constexpr int keyF4 = 293;
constexpr int keyLeftShift = 340;
constexpr int keyLeftAlt = 342;

constexpr int joystickAxisCount = 5;
constexpr int joystickButtonCount = 10;

struct VideoMode {
    int width;
    int height;
    int redBits;
    int greenBits;
    int blueBits;
};

struct WindowRequest {
    int width;
    int height;
    bool fullscreen;
    int samples;          ///< Multisampling; 0 is off.
    int smallestSide = 1; ///< Pixels that the user must leave it on each side.
};

/// Receivers of events. All are called inside `Window::pollEvents`; an empty one is skipped. Held
/// keys do not repeat.
struct WindowEvents {
    std::function<void(int key, int action)> key;
    std::function<void(int button, int action)> mouseButton;
    std::function<void()> mouseMoved;
    std::function<void(int position)> wheel; ///< Running position of the wheel, in clicks.
    std::function<void(int width, int height)> resized; ///< Pixels; 0 by 0 when minimised.
};

class Window {
public:
    virtual ~Window() = default;

    /// Screen modes of the main monitor, in the system's order (small to large).
    virtual std::vector<VideoMode> videoModes() = 0;

    /// Opens the window with 8 alpha and 32 depth bits (as the system can give them) and makes its
    /// OpenGL context current. False if there is no display or no such context.
    virtual bool open(const WindowRequest& request) = 0;
    /// Why the latest `open` failed, for people.
    virtual std::string failure() = 0;
    virtual void terminate() = 0;

    /// False once the user has asked to close the window, or before it was opened.
    virtual bool isOpen() = 0;
    virtual void setTitle(const char* title) = 0;
    virtual void setSwapInterval(int interval) = 0;
    virtual void getSize(int& width, int& height) = 0;
    virtual void setSize(int width, int height) = 0;
    virtual void minimise() = 0;
    virtual void hideCursor() = 0;
    virtual void swapBuffers() = 0;

    /// Seconds since the window system was started.
    virtual double time() = 0;

    virtual void setEvents(WindowEvents events) = 0;
    virtual void pollEvents() = 0;

    virtual bool isKeyDown(int key) = 0;
    /// Sticky: a press that was released before anybody asked is still seen once.
    virtual bool isMouseButtonDown(int button) = 0;
    /// Pixels from the upper left corner of the window.
    virtual void getMousePosition(int& x, int& y) = 0;
    virtual void setMousePosition(int x, int y) = 0;

    virtual bool isJoystickPresent() = 0;
    virtual void readJoystick(std::array<float, joystickAxisCount>& axes,
                              std::array<std::uint8_t, joystickButtonCount>& buttons) = 0;
};

/// The process's window. A `GlfwWindow` is made on first use unless one was set before.
Window& window();

/// Puts another window in place, or none.
void setWindow(std::unique_ptr<Window> replacement);

} // namespace platform
