#include "InputObject.h"

#include "InputModule.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/GraphicsObject.h"

InputObject::InputObject(GraphicsObject* shown) : graphics(shown) {
    if (graphics != nullptr) {
        graphicsModule().addInterfaceObject(graphics);
    }
}

InputObject::~InputObject() {
    if (auto* input = existingService<InputModule>()) {
        input->forget(this);
    }
    if (auto* module = existingService<GraphicsModule>()) {
        module->removeInterfaceObject(graphics);
    }
}

void InputObject::moveBy(float dx, float dy) {
    if (graphics != nullptr) {
        graphics->moveBy(dx, dy);
    }
}

void InputObject::setZ(float z) {
    if (graphics != nullptr) {
        graphics->setZ(z);
    }
}

bool InputObject::contains(float x, float y) const {
    return graphics != nullptr && graphics->containsPoint(x, y);
}

void InputObject::mouse(float /*x*/, float /*y*/, int /*button*/, int /*action*/) {
    takeFocus();
}

void InputObject::key(int /*key*/, int /*action*/) {}

void InputObject::takeFocus() {
    InputObject*& focus = inputModule().focus;
    if (focus != nullptr && focus != this) {
        focus->lostFocus();
    }
    focus = this;
}
