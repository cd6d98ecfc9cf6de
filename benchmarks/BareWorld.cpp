#include "BareWorld.h"

#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

static btDefaultCollisionConstructionInfo makeInfo() {
    btDefaultCollisionConstructionInfo info;
    info.m_defaultMaxPersistentManifoldPoolSize = 32768;
    return info;
}

BareWorld::BareWorld()
    : configuration(makeInfo()),
      dispatcher(&configuration),
      world(&dispatcher, &broadphase, &solver, &configuration) {
    const int box = BOX_2D_SHAPE_PROXYTYPE;
    const int convex = CONVEX_2D_SHAPE_PROXYTYPE;
    dispatcher.registerCollisionCreateFunc(convex, convex, &convexFunction);
    dispatcher.registerCollisionCreateFunc(box, convex, &convexFunction);
    dispatcher.registerCollisionCreateFunc(convex, box, &convexFunction);
    dispatcher.registerCollisionCreateFunc(box, box, &boxFunction);
    world.setGravity(physicsModule().world->getGravity());
    world.getSolverInfo() = physicsModule().world->getSolverInfo();
}

BareWorld::~BareWorld() {
    for (btTypedConstraint* joint : joints) {
        world.removeConstraint(joint);
    }
    for (btRigidBody* body : bodies) {
        world.removeRigidBody(body);
    }
}

void BareWorld::add(PhysicsObject& object) {
    btRigidBody& body = *object.body;
    if (const auto filter = collisionFilter(object.kind, body.isStaticObject())) {
        world.addRigidBody(&body, filter->group, filter->mask);
        bodies.push_back(&body);
    }
}

void BareWorld::add(btTypedConstraint& joint) {
    world.addConstraint(&joint, true);
    joints.push_back(&joint);
}

void BareWorld::step() {
    world.stepSimulation(1.0F / 60.0F, 0, 1.0F / 60.0F);
}
