#pragma once

#include "platform/Window.h"

#include <deque>
#include <functional>
#include <set>
#include <string>

/// A window without a display, whose user, clock and screen are the test. What the user does takes
/// effect inside the next `pollEvents`, in order, as in the real window. Around another window,
/// which then draws, it takes over the input and the clock only.
class ScriptedWindow : public platform::Window {
public:
    explicit ScriptedWindow(std::unique_ptr<platform::Window> drawing = nullptr);

    // The user.
    void press(int key);
    void release(int key);
    void pressMouse(int button);
    void releaseMouse(int button);
    void moveMouse(int x, int y); ///< Pixels from the upper left corner.
    void resize(int newWidth, int newHeight);
    void close();

    void advance(double seconds) { clock += seconds; }

    // What the window finds on its machine.
    std::vector<platform::VideoMode> modes{{640, 480, 8, 8, 8}, {1280, 800, 8, 8, 8}};
    bool joystickPresent = false;
    std::array<float, platform::joystickAxisCount> joystickAxes{};
    std::array<std::uint8_t, platform::joystickButtonCount> joystickButtons{};

    // What the program has asked for.
    int swaps = 0;
    int resizes = 0; ///< Calls of `setSize`.

    std::vector<platform::VideoMode> videoModes() override { return modes; }
    bool open(const platform::WindowRequest& wanted) override;
    std::string failure() override;
    void terminate() override;
    bool isOpen() override;
    void setTitle(const char* text) override;
    void setSwapInterval(int) override {}
    void getSize(int& width, int& height) override;
    void setSize(int newWidth, int newHeight) override;
    void minimise() override;
    void hideCursor() override {}
    void swapBuffers() override;
    double time() override { return clock; }
    void setEvents(platform::WindowEvents newEvents) override;
    void pollEvents() override;
    bool isKeyDown(int key) override { return keysDown.contains(key); }
    bool isMouseButtonDown(int button) override;
    void getMousePosition(int& x, int& y) override;
    void setMousePosition(int x, int y) override;
    bool isJoystickPresent() override { return joystickPresent; }
    void readJoystick(std::array<float, platform::joystickAxisCount>& axes,
                      std::array<std::uint8_t, platform::joystickButtonCount>& buttons) override;

private:
    void sendKey(int key, int action);
    void sendMouseButton(int button, int action);
    void sendSize(int reportedWidth, int reportedHeight);

    std::unique_ptr<platform::Window> inner; // may be null
    platform::WindowEvents events;
    std::deque<std::function<void()>> pending;
    double clock = 0.0;
    bool opened = false;
    int windowWidth = 1280;
    int windowHeight = 800;
    int mouseX = 640;
    int mouseY = 400;
    std::set<int> keysDown;
    std::set<int> buttonsDown;
    std::set<int> unseenPresses; // of mouse buttons; sticky until asked for
};
