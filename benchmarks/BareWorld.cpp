#include "BareWorld.h"

#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"

static btDefaultCollisionConstructionInfo makeInfo() {
    btDefaultCollisionConstructionInfo info;
    info.m_defaultMaxPersistentManifoldPoolSize = 32768;
    return info;
}

static float distance(const btRigidBody& a, const btRigidBody& b) {
    return (a.getWorldTransform().getOrigin() - b.getWorldTransform().getOrigin()).length();
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
    for (const Twin& twin : bodies) {
        world.removeRigidBody(twin.copy);
    }
}

void BareWorld::add(PhysicsObject& object, const SceneObject* original) {
    btRigidBody& body = *object.body;
    if (const auto filter = collisionFilter(object.kind, body.isStaticObject())) {
        world.addRigidBody(&body, filter->group, filter->mask);
        bodies.push_back({original, &body});
    }
}

void BareWorld::add(btTypedConstraint& joint) {
    world.addConstraint(&joint, true);
    joints.push_back(&joint);
}

void BareWorld::step() {
    world.stepSimulation(1.0F / 60.0F, 0, 1.0F / 60.0F);
}

void BareWorld::follow(float tolerance) {
    for (const auto& [original, copy] : bodies) {
        if (!sceneManager().contains(original) || original->physicsObject == nullptr) {
            continue; // gone, and another may be in its place
        }
        const btRigidBody& body = *original->physicsObject->body;
        if (distance(*copy, body) > tolerance) {
            copy->setWorldTransform(body.getWorldTransform());
            copy->setInterpolationWorldTransform(body.getInterpolationWorldTransform());
            copy->setLinearVelocity(body.getLinearVelocity());
            copy->setAngularVelocity(body.getAngularVelocity());
            copy->setDeactivationTime(body.getDeactivationTime());
            copy->forceActivationState(body.getActivationState());
        }
    }
}
