#include "myGeneric6DofSpringConstraint.h"

myGeneric6DofSpringConstraint::myGeneric6DofSpringConstraint(btRigidBody& bodyA, btRigidBody& bodyB,
                                                             const btTransform& frameInA,
                                                             const btTransform& frameInB)
    : btGeneric6DofSpringConstraint(bodyA, bodyB, frameInA, frameInB, true) {}
