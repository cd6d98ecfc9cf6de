#pragma once

#include <BulletDynamics/ConstraintSolver/btGeneric6DofSpringConstraint.h>

/// The sliding and turning joint of the plane. Every joint of Bullet's type
/// `D6_SPRING_CONSTRAINT_TYPE` in the game is one. The state of its springs, which a saved game
/// keeps, is read through the inherited `isSpringEnabled` and `getEquilibriumPoint`.
class myGeneric6DofSpringConstraint : public btGeneric6DofSpringConstraint {
public:
    /// Linear limits count in the frame of A.
    myGeneric6DofSpringConstraint(btRigidBody& bodyA, btRigidBody& bodyB,
                                  const btTransform& frameInA, const btTransform& frameInB);
    ~myGeneric6DofSpringConstraint() override = default;
};
