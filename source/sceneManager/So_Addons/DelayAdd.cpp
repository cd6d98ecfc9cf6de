#include "DelayAdd.h"

#include "inputModule/InputModule.h"
#include "platform/Window.h"

#include <algorithm>

static constexpr unsigned shortestDelay = 2;

DelayAdd::DelayAdd(ScriptWords& words) : DelayAdd(AdditionType::delay, keyword, words) {}
DelayAdd::DelayAdd(TextReader& stream) : DelayAdd(AdditionType::delay, stream) {}

DelayAdd::DelayAdd(AdditionType code, const char* word, ScriptWords& words)
    : OneArgCall(code, word, words) {
    const bool isLast = words.empty(); // has nothing to fire, and its number may be missing
    if (!isLast) {
        arg = std::max(arg, shortestDelay);
    }
    counter = arg;
}

DelayAdd::DelayAdd(AdditionType code, TextReader& stream) : OneArgCall(code, stream) {
    stream >> counter;
}

bool DelayAdd::fire(SceneObject*) {
    if (counter == arg) {
        --counter;
        noteStart();
    }
    return false;
}

bool DelayAdd::countDown(SceneObject* owner) {
    --counter;
    if (counter != 0 || getNext() == nullptr) {
        return false;
    }
    fireNext(owner);
    counter = arg;
    return true;
}

void DelayAdd::advance(SceneObject* owner) {
    if (isRunning()) {
        countDown(owner);
    }
}

void DelayAdd::saveFields(TextWriter& stream) const {
    OneArgCall::saveFields(stream);
    stream << counter;
}

DelayOrKeyAdd::DelayOrKeyAdd(ScriptWords& words)
    : DelayAdd(AdditionType::delayOrKey, keyword, words) {}
DelayOrKeyAdd::DelayOrKeyAdd(TextReader& stream) : DelayAdd(AdditionType::delayOrKey, stream) {}

static bool isKeyDown() {
    const auto& buttons = inputModule().buttons;
    return platform::window().isMouseButtonDown(platform::leftMouseButton) ||
           platform::window().isKeyDown(platform::keySpace) ||
           std::any_of(buttons.begin(), buttons.end(), [](auto button) { return button != 0; });
}

void DelayOrKeyAdd::advance(SceneObject* owner) {
    if (!isRunning() || countDown(owner) || !isRunning()) {
        return;
    }
    const bool keyDown = isKeyDown();
    if (!keyDown && !waitRelease) {
        return;
    }
    waitRelease = true;
    if (keyDown) {
        return;
    }
    fireNext(owner);
    counter = arg + 1;
    waitRelease = false;
}
