#pragma once

#include "physicsModule/btFixedWorld.h"

#include <BulletCollision/CollisionDispatch/btBox2dBox2dCollisionAlgorithm.h>
#include <BulletCollision/CollisionDispatch/btConvex2dConvex2dAlgorithm.h>
#include <BulletCollision/NarrowPhaseCollision/btMinkowskiPenetrationDepthSolver.h>
#include <btBulletDynamicsCommon.h>

#include <vector>

class PhysicsObject;

/// A Bullet world set up as the game's, with bodies and nothing of ours around them: what our step
/// is compared to. Make it while the `PhysicsModule` stands.
class BareWorld {
public:
    BareWorld();
    ~BareWorld();
    BareWorld(const BareWorld&) = delete;
    BareWorld& operator=(const BareWorld&) = delete;

    /// Under the group and mask of its kind; the body must outlive the world.
    void add(PhysicsObject& object);
    /// The joint must outlive the world.
    void add(btTypedConstraint& joint);
    void step();

private:
    btDefaultCollisionConfiguration configuration;
    btCollisionDispatcher dispatcher;
    btDbvtBroadphase broadphase;
    btSequentialImpulseConstraintSolver solver;
    btVoronoiSimplexSolver simplex;
    btMinkowskiPenetrationDepthSolver penetration;
    btConvex2dConvex2dAlgorithm::CreateFunc convexFunction{&simplex, &penetration};
    btBox2dBox2dCollisionAlgorithm::CreateFunc boxFunction;
    btFixedWorld world;
    std::vector<btRigidBody*> bodies;
    std::vector<btTypedConstraint*> joints;
};
