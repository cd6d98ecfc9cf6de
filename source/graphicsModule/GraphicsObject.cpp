#include "GraphicsObject.h"

#include <cassert>

void GraphicsObject::drawShadow(LightAdd&) {}

void GraphicsObject::setCastsShadow(int) {}

void GraphicsObject::moveTo(float, float) {}

void GraphicsObject::moveBy(float, float) {}

void GraphicsObject::rotateVertices(float) {}

void GraphicsObject::transformVertices(const btTransform&) {}

bool GraphicsObject::containsPoint(float, float) const {
    return false;
}

float GraphicsObject::getLeft() const {
    return 0.0F;
}

float GraphicsObject::getRight() const {
    return 0.0F;
}

float GraphicsObject::getBottom() const {
    return 0.0F;
}

float GraphicsObject::getTop() const {
    return 0.0F;
}

float GraphicsObject::getWidth() const {
    return getRight() - getLeft();
}

float GraphicsObject::getHeight() const {
    return getTop() - getBottom();
}

int GraphicsObject::getTexture() const {
    return 0;
}

float GraphicsObject::getParallax() const {
    return 0.0F;
}

void GraphicsObject::setPhysicsObject(PhysicsObject*) {}

void GraphicsObject::write(TextWriter&) const {
    assert(!"source/graphicsModule/GraphicsObject: this class is not stored");
}

Bounds GraphicsObject::getBounds() const {
    return unboundedBounds;
}

void GraphicsObject::updateBounds() {}

void GraphicsObject::updateLocalBounds() {}

void GraphicsObject::refreshTransform() {}

void GraphicsObject::mapTexcoordsToWorld() {}

void GraphicsObject::mapTexcoordsToBounds() {}

void GraphicsObject::mapTexcoordsMixed() {}

void GraphicsObject::regenerateTexcoords() {}

void GraphicsObject::centreVertices() {}

btVector3 GraphicsObject::getCentre() const {
    return {0.0F, 0.0F, 0.0F};
}

void GraphicsObject::setOutlined(bool) {}

void GraphicsObject::setColour(float, float, float, float) {}

void GraphicsObject::getColour(float&, float&, float&, float&) const {}

btTransform& GraphicsObject::identityTransform() {
    static btTransform identity;
    identity.setIdentity();
    return identity;
}
