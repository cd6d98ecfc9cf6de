// How `PhysicsModule` builds its world, what enters and leaves it, and who asks it for bodies.

#include "CollisionRules.h"
#include "ModuleManager.h"
#include "MyDebugDraw.h"
#include "PhysicsModule.h"
#include "PhysicsObject.h"
#include "Settings.h"
#include "btFixedWorld.h"
#include "myAABBCallback.h"
#include "myCollisionDispatcher.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/So_Addition.h"

#include <BulletCollision/BroadphaseCollision/btDbvtBroadphase.h>
#include <BulletCollision/CollisionDispatch/btBox2dBox2dCollisionAlgorithm.h>
#include <BulletCollision/CollisionDispatch/btConvex2dConvex2dAlgorithm.h>
#include <BulletCollision/CollisionDispatch/btDefaultCollisionConfiguration.h>
#include <BulletCollision/NarrowPhaseCollision/btMinkowskiPenetrationDepthSolver.h>
#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/ConstraintSolver/btGeneric6DofSpringConstraint.h>
#include <BulletDynamics/ConstraintSolver/btSequentialImpulseConstraintSolver.h>

#include <algorithm>
#include <iostream>

namespace {

// Room for pairs in contact and their algorithms before Bullet falls back on the heap.
constexpr int manifoldPoolSize = 32768;
constexpr int algorithmPoolSize = 4096;

constexpr float equalVertexThreshold = 0.0001F; ///< Of the simplex solver, world units.

/// Bullet separates overlapping bodies in a pass of its own unless told otherwise, and at the
/// weights and sizes of this game (gravity 640, crates 40 units wide) that pass lets stacks creep:
/// of a tower of eight crates nothing stands after a minute. With the correction as part of the
/// velocities the same tower is off by 0.8 units, a pile of sixty settles better, and the step
/// costs about a quarter less. The solver's other defaults were each tried and stay: more error
/// correction or more warm starting topples the tower, less lets piles sink into each other, and
/// twice the iterations steady a pile a little for a third more time.
constexpr int splitImpulse = 0;

constexpr float gravityDirection = -10.0F; ///< Times `gravityStrength`, along y of the world frame.

constexpr int everyDebugLayer = 0x3FFF;

// Springs of sliding and turning joints, on Bullet's axes.
constexpr int axisX = 0;
constexpr int axisY = 1;
constexpr int axisTurn = 5;
constexpr float slideStiffness = 39.478F;
constexpr float slideDamping = 0.1F;
constexpr float turnStiffness = 80000.0F;
constexpr float turnDamping = 0.00003F;
constexpr float stopSoftness = -0.001F; ///< Makes stops a little harder than rigid; stable.

void readRenderMode() {
    renderMode = 0;
    try {
        renderMode = getModifier<int>("RENDER_MODE", moduleManager().settingsText);
    } catch (const std::string& message) {
        std::cout << message << '\n';
    }
}

void setSpring(btGeneric6DofSpringConstraint& joint, int axis, float stiffness, float damping) {
    joint.setStiffness(axis, stiffness);
    joint.setDamping(axis, damping);
}

void tuneSprings(btGeneric6DofSpringConstraint& joint) {
    for (const int axis : {axisY, axisX, axisTurn}) {
        joint.setParam(BT_CONSTRAINT_STOP_CFM, stopSoftness, axis);
    }
    setSpring(joint, axisY, slideStiffness, slideDamping);
    setSpring(joint, axisTurn, turnStiffness, turnDamping);
    setSpring(joint, axisX, slideStiffness, slideDamping);
}

} // namespace

PhysicsModule::PhysicsModule() {
    readRenderMode();
    gDisableDeactivation = true; // no body ever goes to sleep
    createWorld();
    registerAlgorithms();
    setWorldFrame(btMatrix3x3::getIdentity());
    debugDrawer = std::make_unique<MyDebugDraw>();
    debugDrawer->setDebugMode(everyDebugLayer);
    world->setDebugDrawer(debugDrawer.get());
}

PhysicsModule::~PhysicsModule() {
    while (!joints.empty()) {
        removeConstraint(joints.front());
    }
    while (!physicsObjects.empty()) {
        removePhysicsObject(physicsObjects.back());
    }
    for (const So_Addition* script : globalScripts) {
        delete script;
    }
    world.reset(); // uses the parts below it to the end
}

void PhysicsModule::createWorld() {
    btDefaultCollisionConstructionInfo info;
    info.m_defaultMaxPersistentManifoldPoolSize = manifoldPoolSize;
    info.m_defaultMaxCollisionAlgorithmPoolSize = algorithmPoolSize;
    info.m_customCollisionAlgorithmMaxElementSize = 0;
    info.m_useEpaPenetrationAlgorithm = 1;
    collisionConfiguration = std::make_unique<btDefaultCollisionConfiguration>(info);
    dispatcher = std::make_unique<myCollisionDispatcher>(collisionConfiguration.get());
    broadphase = std::make_unique<btDbvtBroadphase>();
    solver = std::make_unique<btSequentialImpulseConstraintSolver>();
    world = std::make_unique<btFixedWorld>(dispatcher.get(), broadphase.get(), solver.get(),
                                           collisionConfiguration.get());
    world->getSolverInfo().m_splitImpulse = splitImpulse;
    world->setForceUpdateAllAabbs(false); // `prepareObjects` does it where walls have moved
}

void PhysicsModule::registerAlgorithms() {
    simplexSolver = std::make_unique<btVoronoiSimplexSolver>();
    simplexSolver->setEqualVertexThreshold(equalVertexThreshold);
    penetrationSolver = std::make_unique<btMinkowskiPenetrationDepthSolver>();
    convex2dCreateFunc = std::make_unique<btConvex2dConvex2dAlgorithm::CreateFunc>(
        simplexSolver.get(), penetrationSolver.get());
    box2dCreateFunc = std::make_unique<btBox2dBox2dCollisionAlgorithm::CreateFunc>();

    constexpr int box = BOX_2D_SHAPE_PROXYTYPE;
    constexpr int convex = CONVEX_2D_SHAPE_PROXYTYPE;
    constexpr int custom = CUSTOM_CONVEX_SHAPE_TYPE;
    btCollisionAlgorithmCreateFunc* flat = convex2dCreateFunc.get();
    dispatcher->registerCollisionCreateFunc(convex, convex, flat);
    dispatcher->registerCollisionCreateFunc(box, convex, flat);
    dispatcher->registerCollisionCreateFunc(convex, box, flat);
    dispatcher->registerCollisionCreateFunc(box, box, box2dCreateFunc.get());
    dispatcher->registerCollisionCreateFunc(custom, custom, flat);
}

void PhysicsModule::addPhysicsObject(PhysicsObject* object) {
    if (object == nullptr) {
        return;
    }
    if (std::ranges::find(physicsObjects, object) != physicsObjects.end()) {
        std::cout << "jest juz taki obiekt PhysicsObject\n";
        return;
    }
    const auto filter = collisionFilter(object->kind, object->body->isStaticObject());
    if (filter) {
        world->addRigidBody(object->body.get(), filter->group, filter->mask);
        physicsObjects.push_back(object);
    }
}

void PhysicsModule::removePhysicsObject(PhysicsObject* object) {
    if (object == nullptr) {
        return;
    }
    const auto place = std::ranges::find(physicsObjects, object);
    if (place == physicsObjects.end()) {
        std::cout << "niema takiego obiektu PhysicsObject\n";
        return;
    }
    removeJointsOf(*object->body);
    world->removeRigidBody(object->body.get());
    physicsObjects.erase(place);
    delete object;
}

void PhysicsModule::renewContacts(const PhysicsObject& object) {
    btRigidBody* body = object.body.get();
    for (PhysicsObject* other : physicsObjects) { // which would keep manifolds that the world frees
        std::erase_if(other->contacts, [body](const btPersistentManifold* manifold) {
            return manifold->getBody0() == body || manifold->getBody1() == body;
        });
    }
    const int group = body->getBroadphaseHandle()->m_collisionFilterGroup;
    const int mask = body->getBroadphaseHandle()->m_collisionFilterMask;
    const btVector3 gravity = body->getGravity();
    world->removeRigidBody(body);
    world->addRigidBody(body, group, mask);
    body->setGravity(gravity); // some bodies fall their own way
}

void PhysicsModule::removeJointsOf(btRigidBody& body) {
    int unlisted = 0; // joints that somebody else owns, which stay
    while (unlisted < body.getNumConstraintRefs()) {
        const int before = body.getNumConstraintRefs();
        removeConstraint(body.getConstraintRef(unlisted));
        if (body.getNumConstraintRefs() == before) {
            ++unlisted;
        }
    }
}

void PhysicsModule::addConstraint(btTypedConstraint* constraint) {
    joints.push_back(constraint);
    if (constraint->getConstraintType() == D6_SPRING_CONSTRAINT_TYPE) {
        tuneSprings(static_cast<btGeneric6DofSpringConstraint&>(*constraint));
    }
    world->addConstraint(constraint, true);
}

void PhysicsModule::removeConstraint(btTypedConstraint* constraint) {
    const auto place = std::ranges::find(joints, constraint);
    if (place == joints.end()) {
        return;
    }
    world->removeConstraint(constraint);
    joints.erase(place);
    delete constraint;
}

void PhysicsModule::setWorldFrame(const btMatrix3x3& matrix) {
    worldFrame = matrix;
    world->setGravity(matrix * btVector3(0, gravityStrength * gravityDirection, 0));
    const SceneManager* scene = existingService<SceneManager>();
    if (scene != nullptr && scene->player != nullptr) {
        scene->player->physicsObject->body->getWorldTransform().setBasis(matrix);
    }
}

std::vector<btRigidBody*> PhysicsModule::queryBox(float x, float y, float halfWidth,
                                                  float halfHeight) {
    std::vector<btRigidBody*> found;
    queryBox(x, y, halfWidth, halfHeight, found);
    return found;
}

void PhysicsModule::queryBox(float x, float y, float halfWidth, float halfHeight,
                             std::vector<btRigidBody*>& found) {
    myAABBCallback callback;
    callback.bodies = std::move(found);
    callback.bodies.clear();
    broadphase->aabbTest(btVector3(x - halfWidth, y - halfHeight, 0),
                         btVector3(x + halfWidth, y + halfHeight, 0), callback);
    found = std::move(callback.bodies);
}
