#include "PhysicsObject.h"

#include "PhysicsModule.h"
#include "ProcessValues.h"
#include "btFixedWorld.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>
#include <LinearMath/btDefaultMotionState.h>
#include <LinearMath/btTransformUtil.h>

#include <algorithm>
#include <cassert>

namespace {

/// Skin of every shape, world units. More makes rounded corners, less makes contacts flicker.
constexpr float collisionMargin = 0.04F;

/// A body that moves further than its half width in a step could jump over a thin wall between two
/// collision checks, so Bullet sweeps a ball of this share of the half width along the motion. Of
/// 40 small bodies thrown at 850 units a second up to 37 passed a wall of half-thickness 2 and up
/// to 13 one of 10; swept, none does. They still land with a thud, and lose up to a third of their
/// bounce. Slower bodies never pay for it.
constexpr float sweptShareOfHalfWidth = 0.5F;

void sweepWhenFast(btRigidBody& body, const btCollisionShape& shape) {
    if (body.isStaticObject() || !shape.isConvex()) {
        return;
    }
    btVector3 low;
    btVector3 high;
    shape.getAabb(btTransform::getIdentity(), low, high);
    const float halfWidth = std::min(high.x() - low.x(), high.y() - low.y()) * 0.5F;
    body.setCcdMotionThreshold(halfWidth);
    body.setCcdSweptSphereRadius(halfWidth * sweptShareOfHalfWidth);
}

/// A transform on the line through `from` and `to`, `fraction` of their distance beyond `base`.
btTransform blend(const btTransform& base, const btTransform& from, const btTransform& to,
                  float fraction) {
    btTransform result;
    for (int i = 0; i < 3; ++i) {
        const btVector3 row =
            base.getBasis()[i] + fraction * (to.getBasis()[i] - from.getBasis()[i]);
        // Half a turn in one step leaves nothing to normalise halfway.
        result.getBasis()[i] = row.fuzzyZero() ? to.getBasis()[i] : row.normalized();
    }
    result.setOrigin(base.getOrigin() + fraction * (to.getOrigin() - from.getOrigin()));
    return result;
}

} // namespace

PhysicsObject::PhysicsObject(ShapeTree tree, float x, float y, float restitution, float friction,
                             float mass)
    : shape(std::move(tree)) {
    shape->setMargin(collisionMargin);
    const btTransform start(btQuaternion::getIdentity(), btVector3(x, y, 0));
    btVector3 inertia(0, 0, 0);
    if (mass != 0.0F) {
        shape->calculateLocalInertia(mass, inertia);
    }
    motionState = std::make_unique<btDefaultMotionState>(start);
    body = std::make_unique<btRigidBody>(mass, motionState.get(), shape.get(), inertia);
    body->setRestitution(restitution);
    body->setFriction(friction);
    body->setLinearFactor(btVector3(1, 1, 0));
    body->setAngularFactor(btVector3(0, 0, 1));
    sweepWhenFast(*body, *shape);
    settle();
}

PhysicsObject::~PhysicsObject() = default;

bool PhysicsObject::moveTowards(float x, float y, float step) {
    if (!body->isStaticObject()) {
        return true;
    }
    btVector3& origin = body->getWorldTransform().getOrigin();
    const btVector3 target(x, y, 0);
    const btVector3 way = target - origin;
    const float distance = way.length();
    const bool arrives = step > distance;
    if (arrives) {
        origin = target;
    } else if (distance > 0.0F) {
        origin += way * (step / distance);
    }
    updateBox();
    return arrives;
}

void PhysicsObject::settle() {
    renderTransform = previousTransform = body->getWorldTransform();
    // Else its box would reach from where it was to here, and keep that size while it stays inside:
    // it would be checked against all that lies between.
    body->setInterpolationWorldTransform(body->getWorldTransform());
    updateBox();
}

void PhysicsObject::updateBox() {
    if (body->getBroadphaseHandle() != nullptr) {
        physicsModule().world->updateSingleAabb(body.get());
    }
}

void PhysicsObject::updateRenderTransform() {
    const btTransform& now = body->getWorldTransform();
    switch (renderMode) {
    case 0:
        btTransformUtil::integrateTransform(
            now, body->getLinearVelocity(), body->getAngularVelocity(),
            static_cast<float>(physicsModule().accumulator), renderTransform);
        break;
    case 1:
        renderTransform = blend(previousTransform, previousTransform, now, physicsFraction);
        break;
    case 2:
        renderTransform = blend(now, previousTransform, now, physicsFraction);
        break;
    case 3:
        renderTransform = now;
        break;
    default:
        assert(!"RENDER_MODE is 0 to 3");
        renderTransform.setIdentity();
    }
}

PhysicsObject* createSphere(float x, float y, float radius, float restitution, float friction,
                            float mass) {
    return new PhysicsObject(makeDisc(radius), x, y, restitution, friction, mass);
}

PhysicsObject* createBox(float x, float y, float halfWidth, float halfHeight, float restitution,
                         float friction, float mass) {
    return new PhysicsObject(makeBox(halfWidth, halfHeight), x, y, restitution, friction, mass);
}

PhysicsObject* createConvex(const std::vector<float>& points, float x, float y, float restitution,
                            float friction, float mass) {
    return new PhysicsObject(makeOutline(points), x, y, restitution, friction, mass);
}

PhysicsObject* createWithShape(btCollisionShape* shape, float x, float y, float restitution,
                               float friction, float mass) {
    return new PhysicsObject(ShapeTree(shape), x, y, restitution, friction, mass);
}
