#pragma once

#include "Window.h"

struct GLFWwindow;

namespace platform {

/// The window on GLFW 3, in a compatibility profile. One a process. Before `open` and after
/// `terminate` every question has a harmless answer.
class GlfwWindow : public Window {
public:
    GlfwWindow(); ///< Starts GLFW and with it the clock.
    ~GlfwWindow() override;
    GlfwWindow(const GlfwWindow&) = delete;
    GlfwWindow& operator=(const GlfwWindow&) = delete;

    std::vector<VideoMode> videoModes() override;
    bool open(const WindowRequest& request) override;
    std::string failure() override;
    void terminate() override;
    bool isOpen() override;
    void setTitle(const char* title) override;
    void setSwapInterval(int interval) override;
    void getSize(int& width, int& height) override;
    void setSize(int width, int height) override;
    void minimise() override;
    void hideCursor() override;
    void swapBuffers() override;
    double time() override;
    void setEvents(WindowEvents newEvents) override;
    void pollEvents() override;
    bool isKeyDown(int key) override;
    bool isMouseButtonDown(int button) override;
    void getMousePosition(int& x, int& y) override;
    void setMousePosition(int x, int y) override;
    bool isJoystickPresent() override;
    void readJoystick(std::array<float, joystickAxisCount>& axes,
                      std::array<std::uint8_t, joystickButtonCount>& buttons) override;

private:
    void installCallbacks();
    void scrolled(double clicks);
    void iconified(bool minimised);

    GLFWwindow* handle = nullptr; // owned
    WindowEvents events;
    double wheel = 0.0; // running position; touch pads turn it by parts of a click
};

} // namespace platform
