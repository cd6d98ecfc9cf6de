// How a character moves: walking, jumping, swimming, and walking to a point by itself.

#include "Player.h"

#include "EqItem.h"
#include "Equipment.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

constexpr float toLeft = -1.0F;
constexpr float toRight = 1.0F;

constexpr float walkBlend = 0.2F;     // share of the target in the new velocity, on land
constexpr float swimBlend = 0.1F;     // the same in water
constexpr float restingShare = 0.8F;  // of the velocity that a step in the air leaves without keys
constexpr float cornerShift = 0.01F;  // world units; frees a disc that rests in a corner
constexpr float pushLimit = 15.0F;    // units a second that walking may give a light support
constexpr float recoilLimit = 170.0F; // units a second that a take-off may give a light support
constexpr float takeOffBonus = 10.0F; // units a second on top of the jump statistic
constexpr std::uint32_t boostSteps = 10; // steps from a take-off in which holding the key lifts
constexpr std::uint32_t jumpPause = 20;  // steps from a take-off or stroke until the next
constexpr float arrivalDistance = 9.0F;  // world units

void setKey(std::uint32_t& keys, std::uint32_t mask, bool down) {
    keys = down ? keys | mask : keys & ~mask;
}

btVector3 inWorldFrame(float x, float y) {
    return physicsModule().worldFrame * btVector3(x, y, 0.0F);
}

} // namespace

void Player::moveByKeys() {
    if (waterCount == 0) {
        moveOnLand();
    } else {
        moveInWater();
    }
}

void Player::moveOnLand() {
    if ((keys & playerKey::up) != 0) {
        jump();
    } else if ((keys & playerKey::down) != 0) {
        crouch();
    }
    if ((keys & playerKey::left) != 0) {
        moveLeft();
    } else if ((keys & playerKey::right) != 0) {
        moveRight();
    } else if (equipment->current == nullptr || !equipment->current->hangsOnLooseObject()) {
        stopWalking();
    }
}

void Player::moveInWater() {
    if ((keys & playerKey::up) != 0) {
        swimUp();
    } else if ((keys & playerKey::down) != 0) {
        swimDown();
    }
    if ((keys & playerKey::left) != 0) {
        swimLeft();
    } else if ((keys & playerKey::right) != 0) {
        swimRight();
    }
}

void Player::stopWalking() {
    btVector3 velocity = body().getLinearVelocity();
    if (supportNow != nullptr) {
        velocity.setX(supportVelocity.x());
        velocity.setZ(0.0F);
    } else {
        velocity *= btVector3(restingShare, 1.0F, restingShare);
    }
    body().setLinearVelocity(velocity);
}

bool Player::moveLeft() {
    walk(toLeft);
    return false;
}

bool Player::moveRight() {
    walk(toRight);
    return false;
}

bool Player::swimLeft() {
    swim(toLeft);
    return false;
}

bool Player::swimRight() {
    swim(toRight);
    return false;
}

void Player::walk(float direction) {
    if (supportNow != nullptr) {
        pushSupport(direction);
    }
    if (isTooFast(direction)) {
        return;
    }
    if (direction == toLeft ? leftFree : rightFree) {
        blendVelocity(direction, walkBlend);
    }
    shift(direction);
}

void Player::swim(float direction) {
    if (isTooFast(direction)) {
        return;
    }
    blendVelocity(direction, swimBlend);
    shift(direction);
}

bool Player::isTooFast(float direction) const {
    const btVector3& axis = physicsModule().worldFrame[0];
    const btVector3 velocity = body().getLinearVelocity();
    return direction * axis.dot(velocity) > statistics.speed &&
           direction * axis.dot(velocity - supportVelocity) > statistics.speed;
}

void Player::blendVelocity(float direction, float share) {
    btVector3 velocity = body().getLinearVelocity();
    const float rest = 1.0F - share;
    velocity.setX(rest * velocity.x() + share * direction * statistics.speed);
    velocity.setZ(rest * velocity.z());
    body().setLinearVelocity(velocity);
}

void Player::shift(float direction) {
    body().getWorldTransform().getOrigin()[0] += direction * cornerShift;
}

void Player::pushSupport(float direction) {
    btRigidBody& support = *supportNow->physicsObject->body;
    float impulse = 2.0F * statistics.push;
    if (impulse * support.getInvMass() > pushLimit) {
        impulse /= support.getInvMass();
    }
    support.applyImpulse(inWorldFrame(-direction * impulse, 0.0F), contactOffset);
}

bool Player::jump() {
    const std::uint32_t sinceJump = physicsModule().stepCount - lastJumpStep;
    if (sinceJump <= jumpPause) {
        if (sinceJump < boostSteps) {
            boostJump();
        }
        return false;
    }
    if (supportRecent != nullptr) {
        takeOff();
        return true;
    }
    if (equipment->current != nullptr) {
        equipment->current->leapOff();
    }
    return false;
}

void Player::boostJump() {
    lastGroundStep = 0; // the grace time ends with the take-off
    body().applyCentralImpulse(inWorldFrame(0.0F, statistics.jump / 5.0F));
}

void Player::takeOff() {
    noLegTuck = false;
    btRigidBody& support = *supportRecent->physicsObject->body;
    const btVector3 leap =
        inWorldFrame(0.0F, statistics.jump + takeOffBonus + support.getLinearVelocity().y());
    btVector3 velocity = body().getLinearVelocity();
    velocity.setY(leap.y());
    body().setLinearVelocity(velocity);
    lastJumpStep = physicsModule().stepCount;

    btVector3 recoil = -0.5F * leap;
    if (recoil.length() * support.getInvMass() > recoilLimit) {
        recoil /= support.getInvMass();
    }
    support.applyImpulse(recoil, contactOffset);
}

bool Player::swimUp() {
    if (supportNow != nullptr) {
        jump();
        return false;
    }
    if (physicsModule().stepCount - lastJumpStep > jumpPause) {
        noLegTuck = false;
        body().applyCentralImpulse(inWorldFrame(0.0F, statistics.jump + takeOffBonus));
        lastJumpStep = physicsModule().stepCount;
    }
    return false;
}

bool Player::swimDown() {
    if (physicsModule().stepCount - lastJumpStep > jumpPause) {
        noLegTuck = true;
        body().applyCentralImpulse(inWorldFrame(0.0F, -statistics.jump));
        lastJumpStep = physicsModule().stepCount;
    }
    return false;
}

void Player::leaveWater() {
    lastJumpStep = physicsModule().stepCount;
}

void Player::setWalkTarget(const btVector3& point) {
    const btVector3 place = body().getWorldTransform().getOrigin();
    if (place.distance(point) < arrivalDistance) {
        walkTarget.setZero();
        stopKeys();
        return;
    }
    walkTarget = point;
    if (walkTarget.x() != place.x()) {
        setKey(keys, playerKey::left, walkTarget.x() < place.x());
        setKey(keys, playerKey::right, walkTarget.x() > place.x());
    }
    setKey(keys, playerKey::up, walkTarget.y() > place.y());
    setKey(keys, playerKey::down, walkTarget.y() <= place.y());
}

void Player::stopKeys() {
    keys &= ~playerKey::movement;
}
