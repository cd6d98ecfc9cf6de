#include "Buoyancy.h"

#include "physicsModule/PhysicsModule.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

namespace {

constexpr float gravityFactor = 10.0F; // of `gravityStrength`, as the world's gravity has it

// Cosine and sine of a radian, by which a body is turned to see which way it would lie flatter.
constexpr float probeCosine = 0.54030231F;
constexpr float probeSine = 0.84147098F;

/// Where the force acts, and which share of it.
struct LiftPoint {
    btVector3 offset{0.0F, 0.0F, 0.0F}; ///< From the body's origin, world units.
    float share = 1.0F;
};

struct Box {
    btVector3 low, high;

    float width() const { return high.x() - low.x(); }
    float height() const { return high.y() - low.y(); }
};

/// Area of the box round the body if it were turned further, the sine telling which way.
float areaTurned(const btRigidBody& body, float sine) {
    btTransform turned(body.getWorldTransform());
    const btVector3 row = turned.getBasis()[0];
    const btVector3 nextRow = turned.getBasis()[1];
    turned.getBasis()[0] = row * probeCosine - nextRow * sine;
    turned.getBasis()[1] = row * sine + nextRow * probeCosine;
    Box box;
    body.getCollisionShape()->getAabb(turned, box.low, box.high);
    return box.width() * box.height();
}

/// To the side on which the lift turns the body to the smaller box.
float sidewaysOffset(const btRigidBody& body, float width) {
    const float back = areaTurned(body, -probeSine);
    const float on = areaTurned(body, probeSine);
    if (on > back) {
        return width * (on / back - 1.0F);
    }
    if (on < back) {
        return -(width / 2.0F) * (back / on - 1.0F);
    }
    return 0.0F;
}

LiftPoint preciseLift(const btRigidBody& body, float surface) {
    Box box;
    body.getAabb(box.low, box.high);
    const float covered = std::max(std::min(box.high.y(), surface) - box.low.y(), 0.0F);
    const btVector3 offset(sidewaysOffset(body, box.width()), box.height() / 2.0F, 0.0F);
    return {offset, covered / box.height()};
}

} // namespace

void applyLift(btRigidBody& body, float waterFactor, float surface, Lift lift) {
    if (body.getInvMass() == 0.0F) {
        return;
    }
    const LiftPoint point = lift == Lift::precise ? preciseLift(body, surface) : LiftPoint{};
    const float force = 1.0F / body.getInvMass() * physicsModule().gravityStrength * gravityFactor *
                        point.share * waterFactor;
    body.applyForce({0.0F, force, 0.0F}, point.offset * (1.0F - point.share));
}
