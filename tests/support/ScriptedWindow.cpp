#include "ScriptedWindow.h"

#include <utility>

using platform::pressed;
using platform::released;

ScriptedWindow::ScriptedWindow(std::unique_ptr<platform::Window> drawing)
    : inner(std::move(drawing)) {}

void ScriptedWindow::press(int key) {
    pending.push_back([this, key] { sendKey(key, pressed); });
}

void ScriptedWindow::release(int key) {
    pending.push_back([this, key] { sendKey(key, released); });
}

void ScriptedWindow::pressMouse(int button) {
    pending.push_back([this, button] { sendMouseButton(button, pressed); });
}

void ScriptedWindow::releaseMouse(int button) {
    pending.push_back([this, button] { sendMouseButton(button, released); });
}

void ScriptedWindow::moveMouse(int x, int y) {
    pending.push_back([this, x, y] {
        mouseX = x;
        mouseY = y;
        if (events.mouseMoved) {
            events.mouseMoved();
        }
    });
}

void ScriptedWindow::resize(int newWidth, int newHeight) {
    pending.push_back([this, newWidth, newHeight] {
        windowWidth = newWidth;
        windowHeight = newHeight;
        if (inner) {
            inner->setSize(newWidth, newHeight);
        }
        sendSize(newWidth, newHeight);
    });
}

void ScriptedWindow::close() {
    pending.push_back([this] { opened = false; });
}

void ScriptedWindow::sendKey(int key, int action) {
    if (action == pressed) {
        keysDown.insert(key);
    } else {
        keysDown.erase(key);
    }
    if (events.key) {
        events.key(key, action);
    }
}

void ScriptedWindow::sendMouseButton(int button, int action) {
    if (action == pressed) {
        buttonsDown.insert(button);
        unseenPresses.insert(button);
    } else {
        buttonsDown.erase(button);
    }
    if (events.mouseButton) {
        events.mouseButton(button, action);
    }
}

void ScriptedWindow::sendSize(int reportedWidth, int reportedHeight) {
    if (events.resized) {
        events.resized(reportedWidth, reportedHeight);
    }
}

bool ScriptedWindow::open(const platform::WindowRequest& wanted) {
    windowWidth = wanted.width;
    windowHeight = wanted.height;
    opened = !inner || inner->open(wanted);
    return opened;
}

std::string ScriptedWindow::failure() {
    return inner ? inner->failure() : "";
}

void ScriptedWindow::terminate() {
    opened = false;
    if (inner) {
        inner->terminate();
    }
}

bool ScriptedWindow::isOpen() {
    return opened && (!inner || inner->isOpen());
}

void ScriptedWindow::setTitle(const char* text) {
    if (inner) {
        inner->setTitle(text);
    }
}

void ScriptedWindow::getSize(int& width, int& height) {
    width = windowWidth;
    height = windowHeight;
}

void ScriptedWindow::setSize(int newWidth, int newHeight) {
    ++resizes;
    resize(newWidth, newHeight);
}

void ScriptedWindow::minimise() {
    pending.push_back([this] { sendSize(0, 0); });
}

void ScriptedWindow::swapBuffers() {
    ++swaps;
    if (inner) {
        inner->swapBuffers();
    }
}

void ScriptedWindow::setEvents(platform::WindowEvents newEvents) {
    events = std::move(newEvents);
}

void ScriptedWindow::pollEvents() {
    if (inner) {
        inner->pollEvents();
    }
    if (pending.empty()) {
        return;
    }
    // What an answer to an event brings about arrives at the next poll.
    std::deque<std::function<void()>> due;
    due.swap(pending);
    for (const auto& event : due) {
        event();
    }
}

bool ScriptedWindow::isMouseButtonDown(int button) {
    return unseenPresses.erase(button) != 0 || buttonsDown.contains(button);
}

void ScriptedWindow::getMousePosition(int& x, int& y) {
    x = mouseX;
    y = mouseY;
}

void ScriptedWindow::setMousePosition(int x, int y) {
    mouseX = x;
    mouseY = y;
}

void ScriptedWindow::readJoystick(
    std::array<float, platform::joystickAxisCount>& axes,
    std::array<std::uint8_t, platform::joystickButtonCount>& buttons) {
    axes = joystickAxes;
    buttons = joystickButtons;
}
