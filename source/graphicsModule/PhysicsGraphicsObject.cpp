#include "PhysicsGraphicsObject.h"

#include "TextStream.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

PhysicsGraphicsObject::PhysicsGraphicsObject(const GraphicsObjectData& shape, PhysicsObject* object)
    : GraphicsObjecte(shape),
      physicsObject(object),
      z(shape.z),
      localTransform(btTransform::getIdentity()) {
    type = 2;
}

PhysicsGraphicsObject::PhysicsGraphicsObject(TextReader& stream)
    : PhysicsGraphicsObject(readGraphicsObjectData(stream), nullptr) {
    stream >> castsShadow;
}

void PhysicsGraphicsObject::getTransform(btTransform& out) const {
    out = physicsObject != nullptr ? physicsObject->getRenderTransform() * localTransform
                                   : localTransform;
    out.getOrigin()[2] += z;
}

btTransform& PhysicsGraphicsObject::getTransformRef() {
    return physicsObject != nullptr ? physicsObject->body->getWorldTransform()
                                    : identityTransform();
}

void PhysicsGraphicsObject::write(TextWriter& stream) const {
    GraphicsObjecte::write(stream);
    stream << castsShadow;
}

void PhysicsGraphicsObject::refreshTransform() {
    if (physicsObject != nullptr) {
        physicsObject->updateRenderTransform();
    }
}
