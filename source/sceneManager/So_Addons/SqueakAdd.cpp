#include "SqueakAdd.h"

#include "Bodies.h"
#include "TextStream.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/ConstraintSolver/btGeneric6DofConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>

static constexpr double middleHalfWidth = 0.1;   // radians on each side
static constexpr float volumePerSpeed = 0.5F;    // at one world unit a second
static constexpr float volumePerTurning = 20.0F; // at one radian a second

TwoSoundAdd::TwoSoundAdd(AdditionType code, const char* word, ScriptWords& words)
    : CallbackAdd(code) {
    takeKeyword(words, word);
    first = takeFileName(words);
    second = words.empty() ? first : takeFileName(words);
}

TwoSoundAdd::TwoSoundAdd(AdditionType code, TextReader& stream) : CallbackAdd(code) {
    stream >> first >> second;
}

void TwoSoundAdd::saveFields(TextWriter& stream) const {
    stream << first << second;
}

void TwoSoundAdd::play(const SceneObject& owner, bool useFirst, float volume) const {
    soundManager().play(useFirst ? first : second, bodyOf(&owner)->getWorldTransform().getOrigin(),
                        reinterpret_cast<SoundOwner>(&owner),
                        static_cast<std::uint8_t>(std::clamp(volume, 0.0F, 128.0F)), true);
}

SqueakAdd::SqueakAdd(ScriptWords& words) : TwoSoundAdd(AdditionType::squeak, keyword, words) {}
SqueakAdd::SqueakAdd(TextReader& stream) : TwoSoundAdd(AdditionType::squeak, stream) {}

/// The joint as one of six degrees of freedom; null if it is none.
static btGeneric6DofConstraint* asSixDof(btTypedConstraint* joint) {
    const bool matches =
        joint != nullptr && (joint->getConstraintType() == D6_CONSTRAINT_TYPE ||
                             joint->getConstraintType() == D6_SPRING_CONSTRAINT_TYPE);
    return matches ? static_cast<btGeneric6DofConstraint*>(joint) : nullptr;
}

bool SqueakAdd::fire(SceneObject* owner) {
    btGeneric6DofConstraint* joint = asSixDof(firstJoint(owner));
    if (joint == nullptr) {
        return true;
    }
    const btRotationalLimitMotor& limit = *joint->getRotationalLimitMotor(2);
    const auto middle = static_cast<float>(
        (static_cast<double>(limit.m_loLimit) + static_cast<double>(limit.m_hiLimit)) * 0.5);
    const double distance = static_cast<double>(joint->getAngle(2)) - static_cast<double>(middle);
    const bool inside = std::abs(distance) < middleHalfWidth;
    if (inside && armed) {
        passMiddle(*owner);
    }
    armed = !inside;
    return true;
}

void SqueakAdd::passMiddle(const SceneObject& owner) const {
    const btRigidBody& body = *bodyOf(&owner);
    float volume = volumePerSpeed * body.getLinearVelocity().length();
    bool toTheRight = body.getLinearVelocity().x() > 0.0F;
    const float turning = body.getAngularVelocity().z();
    if (volume < std::abs(volumePerTurning * turning)) {
        volume = std::abs(volumePerTurning * turning);
        toTheRight = turning > 0.0F;
    }
    play(owner, toTheRight, volume);
}

CreakAdd::CreakAdd(ScriptWords& words) : TwoSoundAdd(AdditionType::creak, keyword, words) {}
CreakAdd::CreakAdd(TextReader& stream) : TwoSoundAdd(AdditionType::creak, stream) {}

bool CreakAdd::fire(SceneObject* owner) {
    if (const btRigidBody* body = bodyOf(owner)) {
        const btVector3& velocity = body->getLinearVelocity();
        play(*owner, velocity.y() < 0.0F, velocity.length());
    }
    return true;
}
