#include "InterfaceGraphicsObject.h"

#include "Painter.h"
#include "TextureStore.h"

namespace {

GraphicsObjectData makeRectangleData(float width, float height, int texture) {
    GraphicsObjectData data;
    data.vertices = {0.0F, 0.0F, 0.0F, height, width, height, width, 0.0F};
    data.texcoords = {0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F, 0.0F};
    data.colours.assign(16, 1.0F);
    data.texture = texture;
    data.parallax = 0.0F;
    return data;
}

} // namespace

InterfaceGraphicsObject::InterfaceGraphicsObject(float left, float bottom, float right, float top,
                                                 const std::string& textureName)
    : InterfaceGraphicsObject(left, bottom, right, top, textureStore().find(textureName)) {}

InterfaceGraphicsObject::InterfaceGraphicsObject(float left, float bottom, float right, float top,
                                                 int texture)
    : GraphicsObjecte(makeRectangleData(right - left, top - bottom, texture)),
      transform(btMatrix3x3::getIdentity(), btVector3(left, bottom, 0.0F)) {}

void InterfaceGraphicsObject::draw() {
    Painter& paint = painter();
    paint.pushTransform();
    paint.multiply(transform);
    textureStore().bind(data.texture);
    paint.polygon(arrays());
    paint.popTransform();
}

float InterfaceGraphicsObject::getZ() const {
    return transform.getOrigin().z();
}

void InterfaceGraphicsObject::setZ(float z) {
    transform.getOrigin().setZ(z);
}

void InterfaceGraphicsObject::moveTo(float x, float y) {
    transform.getOrigin().setX(x);
    transform.getOrigin().setY(y);
}

void InterfaceGraphicsObject::moveBy(float dx, float dy) {
    moveTo(transform.getOrigin().x() + dx, transform.getOrigin().y() + dy);
}

bool InterfaceGraphicsObject::containsPoint(float x, float y) const {
    return getLeft() <= x && x <= getRight() && getBottom() <= y && y <= getTop();
}

// The sides rely on the vertex order of the constructor: lower left, upper left, upper right, lower
// right.

float InterfaceGraphicsObject::getLeft() const {
    return data.vertices[0] + transform.getOrigin().x();
}

float InterfaceGraphicsObject::getRight() const {
    return data.vertices[6] + transform.getOrigin().x();
}

float InterfaceGraphicsObject::getBottom() const {
    return data.vertices[1] + transform.getOrigin().y();
}

float InterfaceGraphicsObject::getTop() const {
    return data.vertices[3] + transform.getOrigin().y();
}
