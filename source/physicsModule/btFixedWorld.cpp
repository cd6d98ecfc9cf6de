#include "btFixedWorld.h"

int btFixedWorld::stepSimulation(btScalar timeStep, int /*maxSubSteps*/,
                                 btScalar /*fixedTimeStep*/) {
    saveKinematicState(timeStep);
    applyGravity();
    internalSingleStepSimulation(timeStep);
    clearForces();
    return 1;
}
