#pragma once

#include "physicsModule/btFixedWorld.h"

#include <BulletCollision/CollisionDispatch/btBox2dBox2dCollisionAlgorithm.h>
#include <BulletCollision/CollisionDispatch/btConvex2dConvex2dAlgorithm.h>
#include <BulletCollision/NarrowPhaseCollision/btMinkowskiPenetrationDepthSolver.h>
#include <btBulletDynamicsCommon.h>

#include <vector>

class PhysicsObject;
class SceneObject;

/// A Bullet world set up as the game's, with bodies and nothing of ours around them: what our step
/// is compared to. Make it while the `PhysicsModule` stands.
class BareWorld {
public:
    BareWorld();
    ~BareWorld();
    BareWorld(const BareWorld&) = delete;
    BareWorld& operator=(const BareWorld&) = delete;

    /// Under the group and mask of its kind; the body must outlive the world. The original is
    /// whom it stands for, and may leave the scene.
    void add(PhysicsObject& object, const SceneObject* original);
    /// The joint must outlive the world.
    void add(btTypedConstraint& joint);
    void step();
    /// Brings those bodies to where their originals are and go that have strayed from there by more
    /// than so many units: in a level somebody walks and flies, which bare bodies do not, and equal
    /// piles fall apart differently. Whoever is moved, by a hair even, costs its world new
    /// contacts.
    void follow(float tolerance);

private:
    struct Twin {
        const SceneObject* original;
        btRigidBody* copy;
    };

    btDefaultCollisionConfiguration configuration;
    btCollisionDispatcher dispatcher;
    btDbvtBroadphase broadphase;
    btSequentialImpulseConstraintSolver solver;
    btVoronoiSimplexSolver simplex;
    btMinkowskiPenetrationDepthSolver penetration;
    btConvex2dConvex2dAlgorithm::CreateFunc convexFunction{&simplex, &penetration};
    btBox2dBox2dCollisionAlgorithm::CreateFunc boxFunction;
    btFixedWorld world;
    std::vector<Twin> bodies;
    std::vector<btTypedConstraint*> joints;
};
