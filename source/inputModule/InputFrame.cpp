#include "InputFrame.h"

#include "InputModule.h"
#include "graphicsModule/GraphicsObject.h"

#include <algorithm>
#include <iostream>

namespace {

constexpr float lowestFrameZ = 100.0F; ///< Above the scene overlay, below the cursor.
constexpr float childZ = 0.1F;         ///< How far children stand in front of their frame.

bool holds(const std::vector<InputObject*>& children, const InputObject* child) {
    return std::ranges::find(children, child) != children.end();
}

} // namespace

InputFrame::InputFrame(GraphicsObject* panel) : InputObject(panel) {
    InputFrame::setZ(static_cast<float>(inputModule().getFrames().size()) + lowestFrameZ);
}

InputFrame::~InputFrame() {
    for (const InputObject* child : children) {
        delete child;
    }
}

void InputFrame::addChild(float x, float y, InputObject* child) {
    if (holds(children, child)) {
        std::cout << "jest juz taki obiekt InputObject\n";
        return;
    }
    // The graphics alone: a frame that is added as a plain child leaves its own children behind.
    if (child->graphics != nullptr) {
        child->graphics->moveBy(x, y);
    }
    child->setZ(z + childZ);
    children.push_back(child);
}

void InputFrame::addSubFrame(float x, float y, InputFrame* frame) {
    frame->moveBy(x, y);
    if (holds(children, frame)) {
        std::cout << "jest juz taki obiekt InputFrame\n";
        return;
    }
    frame->setZ(z + childZ);
    children.push_back(frame);
}

void InputFrame::moveBy(float dx, float dy) {
    InputObject::moveBy(dx, dy);
    for (InputObject* child : children) {
        child->moveBy(dx, dy);
    }
}

void InputFrame::setZ(float value) {
    z = value;
    InputObject::setZ(z);
    for (InputObject* child : children) {
        child->setZ(z + childZ);
    }
}

void InputFrame::tick() {
    for (InputObject* child : children) {
        child->tick();
    }
}

void InputFrame::mouse(float x, float y, int button, int action) {
    takeFocus();
    for (InputObject* child : children) {
        if (child->contains(x, y)) {
            child->mouse(x, y, button, action);
            return; // the child may have closed this very frame
        }
    }
}
