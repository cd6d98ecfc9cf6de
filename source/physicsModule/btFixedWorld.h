#pragma once

#include <BulletDynamics/Dynamics/btDiscreteDynamicsWorld.h>

/// A world that takes exactly one internal step a call: no time accumulator, no substeps, no
/// interpolation. Motion states are never synchronised, so a body's world transform is the truth.
class btFixedWorld : public btDiscreteDynamicsWorld {
public:
    using btDiscreteDynamicsWorld::btDiscreteDynamicsWorld;
    ~btFixedWorld() override = default;

    /// Advances by `timeStep` seconds; the other two are not used. Always 1.
    int stepSimulation(btScalar timeStep, int maxSubSteps = 1,
                       btScalar fixedTimeStep = btScalar(1.0 / 60.0)) override;
};
