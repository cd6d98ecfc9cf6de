#pragma once

#include "Module.h"
#include "Service.h"

#include <LinearMath/btMatrix3x3.h>

#include <cstdint>
#include <memory>
#include <vector>

class MyDebugDraw;
class PhysicsObject;
class So_Addition;
class btBroadphaseInterface;
class btCollisionConfiguration;
class btFixedWorld;
class btRigidBody;
class btTypedConstraint;
struct btCollisionAlgorithmCreateFunc;
class btConvexPenetrationDepthSolver;
class btSequentialImpulseConstraintSolver;
class btVoronoiSimplexSolver;
class myCollisionDispatcher;

/// Owner of the Bullet world and the game's clock: one `update` is one step, 60 a second. Scene
/// objects, scripts, sounds, fades and removals all happen inside it. Deleted by `ModuleManager`.
class PhysicsModule : public Module {
    ServiceSlot<PhysicsModule> slot{this};

public:
    PhysicsModule();
    ~PhysicsModule() override;

    /// One step.
    void update() override;

    /// Puts the body into the world under the group and mask of its kind and takes the object over.
    /// Ignores null and unknown kinds; a second add says "jest juz taki obiekt PhysicsObject".
    void addPhysicsObject(PhysicsObject* object);
    /// Removes and deletes the object and the listed joints of its body. Ignores null; an unknown
    /// one gets "niema takiego obiektu PhysicsObject" and stays alive.
    void removePhysicsObject(PhysicsObject* object);
    /// Takes a listed object's body out of the world and puts it back as it was, so that whom it
    /// meets is found anew. What it touches in this step is forgotten, on both sides.
    void renewContacts(const PhysicsObject& object);

    /// Takes the joint over; linked bodies do not collide.
    void addConstraint(btTypedConstraint* constraint);
    /// Removes and deletes a listed joint.
    void removeConstraint(btTypedConstraint* constraint);

    /// Sets which way is down, and turns the protagonist to it.
    void setWorldFrame(const btMatrix3x3& matrix);

    /// Bodies whose bounding boxes overlap the box; null for a collision object that is no rigid
    /// body. In the broadphase's order.
    std::vector<btRigidBody*> queryBox(float x, float y, float halfWidth, float halfHeight);
    /// The same in place of what is in the list, for those who ask often: it keeps its room.
    void queryBox(float x, float y, float halfWidth, float halfHeight,
                  std::vector<btRigidBody*>& found);

    /// Appends a global script and takes it over, unless it is listed already.
    void addScript(So_Addition* script);
    /// Queues the removal of the global script that contains the addition, for the end of the pass.
    void removeScript(So_Addition* link);
    void removeAllScripts();

    const std::vector<PhysicsObject*>& getPhysicsObjects() const { return physicsObjects; }
    const std::vector<btTypedConstraint*>& getJoints() const { return joints; }
    const std::vector<So_Addition*>& getGlobalScripts() const { return globalScripts; }

    std::uint32_t stepCount = 0;   ///< Steps since start, also while the world stands still.
    btMatrix3x3 worldFrame;        ///< Rotation from the frame of gravity to the world.
    float gravityStrength = 64.0F; ///< A tenth of gravity's acceleration.
    std::unique_ptr<btFixedWorld> world;

private:
    void createWorld();
    void registerAlgorithms();

    // The phases of a step, in order.
    void prepareObjects();
    void stepWorld();
    void collectContacts();
    void updateScene();
    void runScripts();

    void followMove(PhysicsObject& object);
    void flushScripts();
    void removeJointsOf(btRigidBody& body);

    std::vector<PhysicsObject*> physicsObjects; // owned
    std::vector<btTypedConstraint*> joints;     // owned
    std::vector<So_Addition*> globalScripts;    // owned
    std::vector<So_Addition*> pendingRemovals;  // any link of a script; not owned
    std::unique_ptr<btBroadphaseInterface> broadphase;
    std::unique_ptr<btCollisionConfiguration> collisionConfiguration;
    std::unique_ptr<myCollisionDispatcher> dispatcher;
    std::unique_ptr<btSequentialImpulseConstraintSolver> solver;
    std::unique_ptr<btCollisionAlgorithmCreateFunc> box2dCreateFunc;
    std::unique_ptr<btVoronoiSimplexSolver> simplexSolver;
    std::unique_ptr<btConvexPenetrationDepthSolver> penetrationSolver;
    std::unique_ptr<btCollisionAlgorithmCreateFunc> convex2dCreateFunc;
    std::unique_ptr<MyDebugDraw> debugDrawer;
};

PhysicsModule& physicsModule();
