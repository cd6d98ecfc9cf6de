#include "Buoyancy.h"

#include "physicsModule/PhysicsModule.h"

#include <BulletCollision/CollisionShapes/btBox2dShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>

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
    float left, bottom, right, top;

    float width() const { return right - left; }
    float height() const { return top - bottom; }
    float area() const { return width() * height(); }
};

/// A body by the box round it, as `getAabb` of its shape gives it. Most of what floats is itself a
/// box, for which the way through the library costs more than the sums.
class Outline {
public:
    explicit Outline(const btRigidBody& body)
        : shape(*body.getCollisionShape()),
          place(body.getWorldTransform()),
          isBox(shape.getShapeType() == BOX_2D_SHAPE_PROXYTYPE) {
        if (isBox) {
            half = static_cast<const btBox2dShape&>(shape).getHalfExtentsWithMargin();
        }
    }

    /// The box if the body were turned on by an angle of that cosine and sine.
    Box boxTurned(float cosine, float sine) const {
        const btMatrix3x3& basis = place.getBasis();
        const float m00 = basis[0].x() * cosine - basis[1].x() * sine;
        const float m01 = basis[0].y() * cosine - basis[1].y() * sine;
        const float m10 = basis[0].x() * sine + basis[1].x() * cosine;
        const float m11 = basis[0].y() * sine + basis[1].y() * cosine;
        if (!isBox) {
            return askShape({m00, m01, 0.0F, m10, m11, 0.0F, 0.0F, 0.0F, 1.0F});
        }
        const float x = place.getOrigin().x();
        const float y = place.getOrigin().y();
        const float reachX = std::abs(m00) * half.x() + std::abs(m01) * half.y();
        const float reachY = std::abs(m10) * half.x() + std::abs(m11) * half.y();
        return {x - reachX, y - reachY, x + reachX, y + reachY};
    }

private:
    Box askShape(const btMatrix3x3& basis) const {
        btVector3 low;
        btVector3 high;
        shape.getAabb(btTransform(basis, place.getOrigin()), low, high);
        return {low.x(), low.y(), high.x(), high.y()};
    }

    const btCollisionShape& shape;
    const btTransform& place;
    bool isBox;
    btVector3 half; // of a box
};

/// To the side on which the lift turns the body to the smaller box.
float sidewaysOffset(const Outline& outline, float width) {
    const float back = outline.boxTurned(probeCosine, -probeSine).area();
    const float on = outline.boxTurned(probeCosine, probeSine).area();
    if (on > back) {
        return width * (on / back - 1.0F);
    }
    if (on < back) {
        return -(width / 2.0F) * (back / on - 1.0F);
    }
    return 0.0F;
}

LiftPoint preciseLift(const btRigidBody& body, float surface) {
    const Outline outline(body);
    const Box box = outline.boxTurned(1.0F, 0.0F);
    const float covered = std::max(std::min(box.top, surface) - box.bottom, 0.0F);
    const btVector3 offset(sidewaysOffset(outline, box.width()), box.height() / 2.0F, 0.0F);
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
