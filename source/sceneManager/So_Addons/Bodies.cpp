#include "Bodies.h"

#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

btRigidBody* bodyOf(const SceneObject* object) {
    if (object == nullptr || object->physicsObject == nullptr) {
        return nullptr;
    }
    return object->physicsObject->body.get();
}

btTypedConstraint* firstJoint(const SceneObject* object) {
    btRigidBody* body = bodyOf(object);
    return body != nullptr && body->getNumConstraintRefs() > 0 ? body->getConstraintRef(0)
                                                               : nullptr;
}

void accelerate(const SceneObject* object, const btVector3& acceleration) {
    btRigidBody* body = bodyOf(object);
    if (body != nullptr && !body->isStaticObject() && body->getInvMass() != 0.0F) {
        body->applyCentralForce(acceleration * (1.0F / body->getInvMass()));
    }
}
