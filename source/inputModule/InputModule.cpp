#include "InputModule.h"

#include "InputFrame.h"
#include "Language.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/GraphicsObject.h"
#include "graphicsModule/Text.h"

#include <algorithm>
#include <iostream>

namespace {

constexpr float raisedZ = 100.0F; ///< Height of a frame above the number of open frames.
constexpr int pressKeyText = 390; ///< Line of the language table: what a bound key is shown with.

// The tip at the top of the screen, logical units.
constexpr float tipWidth = 800.0F;
constexpr float tipSize = 5.0F;

void readKey(const char* setting, char& key) {
    try {
        key = getModifier<char>(setting, moduleManager().settingsText);
    } catch (const std::string&) {
        // A missing or damaged setting leaves the usual key.
    }
}

bool isBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

/// The mouse in window pixels; put back at the border when it has left the window.
void readClampedMouse(int& x, int& y) {
    platform::window().getMousePosition(x, y);
    const int insideX = std::clamp(x, 0, std::max(windowWidth, 0));
    const int insideY = std::clamp(y, 0, std::max(windowHeight, 0));
    if (insideX != x || insideY != y) {
        x = insideX;
        y = insideY;
        platform::window().setMousePosition(x, y);
    }
}

} // namespace

InputModule& inputModule() {
    return service<InputModule>();
}

InputModule::InputModule() {
    readKey("KEYUP", keyUp);
    readKey("KEYDOWN", keyDown);
    readKey("KEYLEFT", keyLeft);
    readKey("KEYRIGHT", keyRight);
}

InputModule::~InputModule() {
    focus = nullptr;
    while (!frames.empty()) {
        deleteFrame(frames.front());
    }
    delete game;
}

void InputModule::update() {
    mouseEvent(-1, mouseAction::moved);
    for (InputFrame* frame : frames) {
        frame->tick();
    }
    sortFrames();
    updateJoystick();
    platform::window().pollEvents();
}

void InputModule::addFrame(InputFrame* frame, float x, float y) {
    frame->moveBy(x, y);
    if (isOpen(frame)) {
        std::cout << "jest juz taki obiekt InputFrame\n";
        return;
    }
    frames.push_back(frame);
    sortFrames();
}

void InputModule::removeFrame(InputFrame* frame) {
    if (!isOpen(frame)) {
        std::cout << "niema takiego obiektu InputFrame\n";
        return;
    }
    dropFocus();
    deleteFrame(frame);
}

void InputModule::removeAllFrames() {
    dropFocus();
    while (!frames.empty()) {
        deleteFrame(frames.front());
    }
}

void InputModule::dropFocus() {
    if (focus != nullptr) {
        focus->lostFocus();
    }
    focus = nullptr;
}

void InputModule::deleteFrame(InputFrame* frame) {
    std::erase(frames, frame);
    delete frame;
}

void InputModule::forget(const InputObject* object) {
    for (InputObject** holder : {&focus, &grabbed, &game, &pressTarget}) {
        if (*holder == object) {
            *holder = nullptr;
        }
    }
    if (tipFrame == object) {
        tipFrame = nullptr;
    }
    if (rebindLabel != nullptr && rebindLabel == object->graphics) {
        rebindLabel = nullptr; // closed in the middle of a binding, which ends with it
        rebinding = 0;
    }
}

bool InputModule::isOpen(const InputFrame* frame) const {
    return std::ranges::find(frames, frame) != frames.end();
}

void InputModule::showTip(const std::string& text, float x, float y, bool noBackground, bool dark) {
    if (tipFrame != nullptr) {
        removeFrame(tipFrame);
    }
    if (isBlank(text)) {
        return;
    }
    const float c = dark ? 0.0F : 1.0F;
    InputFrame* tip = makeTextFrame(text, tipWidth, 0.0F, tipSize, c, c, c);
    tip->graphics->setColour(0.0F, 0.0F, 0.0F, noBackground ? 0.0F : 1.0F);
    addFrame(tip, logicalWidth * 0.5F - tip->graphics->getWidth() * 0.5F + x,
             y + logicalHeight - tip->graphics->getHeight());
    tipFrame = tip;
}

void InputModule::keyEvent(int key, int action) {
    if (rebinding != 0) {
        bindKey(key);
    } else if (grabbed != nullptr) {
        grabbed->key(key, action);
    } else if (game != nullptr) {
        game->key(key, action);
    }
}

void InputModule::bindKey(int key) {
    struct Binding {
        const char* setting;
        char& key;
    };
    const std::array<Binding, 4> bindings{
        {{"KEYUP", keyUp}, {"KEYDOWN", keyDown}, {"KEYLEFT", keyLeft}, {"KEYRIGHT", keyRight}}};
    const Binding& binding = bindings.at(static_cast<std::size_t>(rebinding - 1));
    if (key >= 'A' && key <= 'Z') {
        binding.key = static_cast<char>(key);
        setModifier(binding.setting, binding.key, moduleManager().settingsText);
        moduleManager().saveSettings();
    }
    if (rebindLabel != nullptr) {
        rebindLabel->setText(text(pressKeyText) + " " + binding.key);
    }
    rebinding = 0;
}

void InputModule::mouseEvent(int button, int action) {
    if (rebinding != 0) {
        return;
    }
    int x = 0;
    int y = 0;
    readClampedMouse(x, y);
    const int visibleWidth = windowWidth - 2 * letterboxX;
    const int visibleHeight = windowHeight - 2 * letterboxY;
    if (visibleWidth <= 0 || visibleHeight <= 0) {
        return; // minimised: there is no picture to point at
    }
    const float logicalX =
        static_cast<float>(x - letterboxX) * logicalWidth / static_cast<float>(visibleWidth);
    const float logicalY = logicalHeight - static_cast<float>(y - letterboxY) * logicalHeight /
                                               static_cast<float>(visibleHeight);
    dispatch(logicalX, logicalY, button, action);
}

void InputModule::wheelEvent(int position) {
    if (position != wheelPosition) {
        constexpr int wheelButton = 9;
        const bool down = position < wheelPosition;
        mouseEvent(wheelButton, down ? mouseAction::wheelDown : mouseAction::wheelUp);
    }
    wheelPosition = position;
}

void InputModule::dispatch(float x, float y, int button, int action) {
    const bool isButton = action != mouseAction::moved && action != mouseAction::wheelDown &&
                          action != mouseAction::wheelUp;
    if (isButton) {
        lastButton = button;
    }
    if (action == platform::released) {
        dragging = 0;
        grabbed = nullptr;
    }
    if (action == mouseAction::moved && dragging == 1 && grabbed != nullptr) {
        grabbed->mouse(x, y, button, action); // a drag does not look at what lies under the mouse
        return;
    }
    if (InputFrame* hit = frameAt(x, y)) {
        dispatchToFrame(hit, x, y, button, action);
    } else {
        dispatchToGame(x, y, button, action);
    }
}

void InputModule::dispatchToFrame(InputFrame* hit, float x, float y, int button, int action) {
    // Whoever got the press gets the release too, wherever the mouse is by now.
    if (action == platform::released && pressTarget != nullptr && pressTarget != hit) {
        pressTarget->mouse(x, y, button, action);
        if (!isOpen(hit)) {
            return; // closed by a button of the frame that got the press
        }
    } else if (action == platform::pressed) {
        pressTarget = hit;
    }
    if (action != mouseAction::moved) {
        bringToFront(hit);
    }
    hit->mouse(x, y, button, action);
}

void InputModule::dispatchToGame(float x, float y, int button, int action) {
    if (game == nullptr) {
        return;
    }
    if (action == platform::released && pressTarget != nullptr && pressTarget != game) {
        pressTarget->mouse(x, y, button, action);
    } else if (action == platform::pressed) {
        pressTarget = game;
    }
    game->mouse(x, y, button, action);
}

InputFrame* InputModule::frameAt(float x, float y) const {
    const auto hit = std::ranges::find_if(
        frames, [x, y](const InputFrame* frame) { return frame->contains(x, y); });
    return hit != frames.end() ? *hit : nullptr;
}

void InputModule::bringToFront(const InputFrame* frame) {
    // The list is not reordered here: an event may still be walking it. The next sort does that.
    const auto count = static_cast<float>(frames.size());
    float below = count + raisedZ - 1.0F;
    for (InputFrame* other : frames) {
        other->setZ(other == frame ? count + raisedZ : below);
        below -= 1.0F;
    }
}

void InputModule::sortFrames() {
    std::ranges::sort(frames, std::ranges::greater(), &InputFrame::getZ);
}
