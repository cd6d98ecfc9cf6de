#include "MultiGraphics.h"

#include "TextStream.h"

#include <algorithm>
#include <iostream>
#include <utility>

MultiGraphics::MultiGraphics(TextReader& stream) : MultiGraphics() {
    const std::size_t count = stream.readCount();
    for (std::size_t i = 0; i < count; ++i) {
        children.push_back(readGraphicsObject(stream));
    }
}

MultiGraphics::~MultiGraphics() {
    while (!children.empty()) {
        delete children.back();
        children.pop_back();
    }
}

void MultiGraphics::addChild(GraphicsObject* child) {
    if (std::find(children.begin(), children.end(), child) != children.end()) {
        std::cout << "jest juz taki obiekt GraphicsObject w MultiGraphics\n";
        return;
    }
    children.push_back(child);
}

void MultiGraphics::removeChild(GraphicsObject* child) {
    const auto place = std::find(children.begin(), children.end(), child);
    if (place == children.end()) {
        std::cout << "niema takiego obiektu GraphicsObject w MultiGraphics\n";
        return;
    }
    children.erase(place);
    delete child;
}

std::vector<GraphicsObject*> MultiGraphics::releaseChildren() {
    return std::exchange(children, {});
}

void MultiGraphics::draw() {
    for (GraphicsObject* child : children) {
        child->draw();
    }
}

void MultiGraphics::drawShadow(LightAdd& light) {
    for (GraphicsObject* child : children) {
        child->drawShadow(light);
    }
}

void MultiGraphics::setCastsShadow(int casts) {
    for (GraphicsObject* child : children) {
        child->setCastsShadow(casts);
    }
}

float MultiGraphics::getZ() const {
    return children.empty() ? z : children.front()->getZ();
}

void MultiGraphics::setZ(float value) {
    z = value;
    for (GraphicsObject* child : children) {
        child->setZ(value);
    }
}

void MultiGraphics::moveTo(float newX, float newY) {
    x = newX;
    y = newY;
    for (GraphicsObject* child : children) {
        child->moveTo(newX, newY);
    }
}

void MultiGraphics::moveBy(float dx, float dy) {
    x += dx;
    y += dy;
    for (GraphicsObject* child : children) {
        child->moveBy(dx, dy);
    }
}

bool MultiGraphics::containsPoint(float px, float py) const {
    return std::any_of(children.begin(), children.end(), [px, py](const GraphicsObject* child) {
        return child->containsPoint(px, py);
    });
}

float MultiGraphics::getLeft() const {
    if (children.empty()) {
        return x;
    }
    float left = children.front()->getLeft();
    for (const GraphicsObject* child : children) {
        left = std::min(left, child->getLeft());
    }
    return left;
}

float MultiGraphics::getRight() const {
    if (children.empty()) {
        return x;
    }
    float right = children.front()->getRight();
    for (const GraphicsObject* child : children) {
        right = std::max(right, child->getRight());
    }
    return right;
}

float MultiGraphics::getBottom() const {
    return children.empty() ? y : children.front()->getBottom();
}

float MultiGraphics::getTop() const {
    return children.empty() ? y : children.front()->getTop();
}

float MultiGraphics::getParallax() const {
    return children.empty() ? 0.0F : children.front()->getParallax();
}

void MultiGraphics::getTransform(btTransform& out) const {
    if (children.empty()) {
        out.setIdentity();
    } else {
        children.front()->getTransform(out);
    }
}

btTransform& MultiGraphics::getTransformRef() {
    return children.empty() ? identityTransform() : children.front()->getTransformRef();
}

void MultiGraphics::setPhysicsObject(PhysicsObject* object) {
    for (GraphicsObject* child : children) {
        child->setPhysicsObject(object);
    }
}

void MultiGraphics::write(TextWriter& stream) const {
    stream << type << children.size();
    for (const GraphicsObject* child : children) {
        child->write(stream);
    }
}

void MultiGraphics::updateBounds() {
    for (GraphicsObject* child : children) {
        child->updateBounds();
    }
}

void MultiGraphics::updateLocalBounds() {
    for (GraphicsObject* child : children) {
        child->updateLocalBounds();
    }
}

void MultiGraphics::refreshTransform() {
    for (GraphicsObject* child : children) {
        child->refreshTransform();
    }
}

void MultiGraphics::setOutlined(bool outlined) {
    for (GraphicsObject* child : children) {
        child->setOutlined(outlined);
    }
}

void MultiGraphics::setColour(float r, float g, float b, float a) {
    for (GraphicsObject* child : children) {
        child->setColour(r, g, b, a);
    }
}

void MultiGraphics::getColour(float& r, float& g, float& b, float& a) const {
    if (!children.empty()) {
        children.front()->getColour(r, g, b, a);
    }
}
