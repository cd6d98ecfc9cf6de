// How the protagonist's parts move: poses that follow from the clock of steps and from what the
// character does, without pictures of their own.

#include "TestPlayer.h"

#include "Aim.h"
#include "EqItem.h"
#include "Equipment.h"
#include "ProtagonistParts.h"
#include "physicsModule/PhysicsModule.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <cmath>

namespace {

constexpr float quarterTurn = 0.5F * 3.1415927F;

constexpr std::uint32_t stretchSteps = 20; // from a take-off until the legs are drawn in again
constexpr float stretch = 0.35F;           // world units for each of these steps
constexpr double breathPace = 11.309733;   // steps a radian of breathing at rest
constexpr float breathHeight = 1.4F;

constexpr std::uint32_t strideSteps = 40; // two footfalls, and the body bobs at each
constexpr float stridePace = 6.2831855F;  // steps a radian
constexpr float strideMiddle = 20.0F;
constexpr float legLift = 3.0F;
constexpr float legReach = 2.0F;
constexpr float walkBob = 2.0F;
constexpr float armSwing = 0.2F; // radians, once in two strides

float cycle(float step) {
    return (step - strideMiddle) / stridePace;
}

void stride(ProtagonistPose& pose, std::uint32_t now, float sign) {
    const auto step = static_cast<float>(now % strideSteps);
    const auto slowStep = static_cast<float>(now % (2 * strideSteps));
    const float lift = legLift * std::sin(cycle(step));
    const float reach = legReach * std::cos(cycle(step)) * sign;
    pose.backLeg += btVector3(-reach, -lift, 0.0F);
    pose.frontLeg += btVector3(reach, lift, 0.0F);
    pose.bob = walkBob * std::cos(cycle(2.0F * step));
    pose.arm += armSwing * std::cos(cycle(slowStep));
}

} // namespace

void TestPlayer::animate() {
    if (graphicsObject == nullptr) {
        return; // broken in this step
    }
    const bool left = (keys & playerKey::left) != 0;
    const bool right = (keys & playerKey::right) != 0;
    const bool looksLeft = left || (facingLeft && !right);
    ProtagonistParts parts(*graphicsObject);
    if (looksLeft != facingLeft) {
        parts.look(looksLeft);
        facingLeft = looksLeft;
    }
    ProtagonistPose pose = standingPose();
    if (left || right) {
        stride(pose, physicsModule().stepCount, facingLeft ? 1.0F : -1.0F);
    }
    aimArm(pose);
    parts.take(pose);
}

/// At rest, in the air, and under what the walk adds.
ProtagonistPose TestPlayer::standingPose() const {
    const std::uint32_t now = physicsModule().stepCount;
    ProtagonistPose pose;
    if (now < lastJumpStep + stretchSteps && !noLegTuck) {
        const float legs = -stretch * static_cast<float>(lastJumpStep + stretchSteps - now);
        pose.backLeg.setY(legs);
        pose.frontLeg.setY(legs);
    }
    if (supportNow != nullptr) {
        pose.bob = static_cast<float>(std::sin(now / breathPace)) * breathHeight;
    }
    pose.arm = facingLeft ? -quarterTurn : quarterTurn;
    return pose;
}

void TestPlayer::aimArm(ProtagonistPose& pose) const {
    const EqItem* item = equipment->current;
    if (item != nullptr && !item->holdAngle(pose.arm) && item->isReaching()) {
        pose.arm = angleFromUp(aimPoint - body().getWorldTransform().getOrigin());
    }
}
