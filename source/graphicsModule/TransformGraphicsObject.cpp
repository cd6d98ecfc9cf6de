#include "TransformGraphicsObject.h"

#include "TextStream.h"

TransformGraphicsObject::TransformGraphicsObject(float x, float y, const GraphicsObjectData& shape)
    : GraphicsObjecte(shape),
      transform(btMatrix3x3::getIdentity(), btVector3(x, y, shape.z)) {
    type = 1;
}

TransformGraphicsObject::TransformGraphicsObject(TextReader& stream)
    : TransformGraphicsObject(0.0F, 0.0F, readGraphicsObjectData(stream)) {
    btVector3& origin = transform.getOrigin();
    btMatrix3x3& basis = transform.getBasis();
    stream >> origin[0] >> origin[1];
    stream >> basis[0][0] >> basis[0][1] >> basis[1][0] >> basis[1][1];
    stream >> castsShadow;
}

float TransformGraphicsObject::getZ() const {
    return transform.getOrigin().z();
}

void TransformGraphicsObject::setZ(float z) {
    transform.getOrigin().setZ(z);
}

void TransformGraphicsObject::moveBy(float dx, float dy) {
    transform.getOrigin() += btVector3(dx, dy, 0.0F);
}

void TransformGraphicsObject::write(TextWriter& stream) const {
    GraphicsObjecte::write(stream);
    const btVector3& origin = transform.getOrigin();
    const btMatrix3x3& basis = transform.getBasis();
    stream << origin.x() << origin.y();
    stream << basis[0].x() << basis[0].y() << basis[1].x() << basis[1].y();
    stream << castsShadow;
}
