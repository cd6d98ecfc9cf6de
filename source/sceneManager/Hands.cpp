#include "Hands.h"

#include "Aim.h"
#include "Equipment.h"
#include "Player.h"
#include "SceneManager.h"
#include "So_Addons/Contacts.h"
#include "graphicsModule/Yaw.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "soundModule/SoundManager.h"

#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/ConstraintSolver/btHingeConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>

namespace {

// What may be grabbed, and where.
constexpr float leastMass = 0.01F;  // of a body that moves
constexpr float mostMass = 3.0F;    // of one that is carried; a character weighs 1
constexpr float reach = 2.0F;       // world units between the bodies
constexpr float lowestGrip = -6.0F; // world units from the character's middle: not under the feet

// How what is held follows the aim.
constexpr float swing = 0.7853982F; // radians to either side of straight up
constexpr float softness = 0.9F;
constexpr float bias = 0.3F; // share of the way that a step makes good
constexpr float relaxation = 1.0F;

constexpr float throwImpulse = 500.0F;
constexpr float throwSpeed = 500.0F; // units a second that it may give a light body
constexpr float throwLever = 0.25F;  // share of the way from the middle to the grip
constexpr float recoil = 0.5F;       // share of a leap that what was held takes

constexpr std::uint8_t handVolume = 64;

bool isLoose(const SceneObject& object) {
    return object.physicsObject->kind == collisionKind::loose;
}

float massOf(const btRigidBody& body) {
    return body.getInvMass() == 0.0F ? 0.0F : 1.0F / body.getInvMass();
}

bool mayBeGrabbed(const SceneObject& object) {
    const btRigidBody& body = *object.physicsObject->body;
    const float mass = massOf(body);
    return (mass == 0.0F || mass >= leastMass) && (!body.isStaticObject() || isLoose(object)) &&
           object.type != sceneObjectType::evilPlayer && (isLoose(object) || mass <= mostMass) &&
           (body.isStaticObject() || body.hasContactResponse());
}

} // namespace

Hands::Hands() : EqWeapon(0.0F, 500.0F) {}

Player& Hands::owner() const {
    return *equipment->owner;
}

const btTransform& Hands::place() const {
    return owner().physicsObject->body->getWorldTransform();
}

btRigidBody& Hands::heldBody() const {
    return *held->physicsObject->body;
}

/// A joint leaves the list with the first of its bodies, and a body dies with its object: as long
/// as the joint is listed, and is ours, all that it leads to is there.
bool Hands::isHolding() const {
    const auto& joints = physicsModule().getJoints();
    return joint != nullptr && std::find(joints.begin(), joints.end(), joint) != joints.end() &&
           &joint->getRigidBodyA() == owner().physicsObject->body.get() &&
           joint->getRigidBodyB().getUserPointer() == held;
}

void Hands::primaryDown() {
    if (joint == nullptr) {
        reaching = true;
    }
}

void Hands::primaryUp() {
    reaching = false;
    drop(false);
}

SceneObject* Hands::use(float, float, float, float, float) {
    if (!isReady()) {
        return nullptr;
    }
    if (reaching && joint == nullptr) {
        grab(false);
    } else if ((owner().keys & playerKey::secondary) != 0) {
        owner().keys &= ~playerKey::secondary; // one press, one throw
        if (isHolding()) {
            hurl();
        }
    }
    return nullptr;
}

SceneObject* Hands::makeProjectile(float, float, float, float, float) {
    return nullptr;
}

bool Hands::grab(bool silent) {
    const bool nothingMoved = laidDown && laidDownStep == physicsModule().stepCount;
    if (silent && nothingMoved && sceneManager().contains(laidDown->object)) {
        take(*laidDown, silent);
        return true;
    }
    const std::optional<Grip> grip = findGrip();
    if (!grip) {
        return false;
    }
    // Bodies that are joined do not meet: what they have in contact ends here.
    physicsModule().renewContacts(*owner().physicsObject);
    physicsModule().renewContacts(*grip->object->physicsObject);
    take(*grip, silent);
    return true;
}

std::optional<Hands::Grip> Hands::findGrip() const {
    for (const btPersistentManifold* manifold : manifoldsOf(&owner())) {
        const Contact contact = contactOf(&owner(), *manifold);
        if (contact.other == nullptr || !mayBeGrabbed(*contact.other)) {
            continue;
        }
        const bool isFirst = manifold->getBody0() == owner().physicsObject->body.get();
        for (int i = 0; i < manifold->getNumContacts(); ++i) {
            const btManifoldPoint& point = manifold->getContactPoint(i);
            const btVector3& mine = isFirst ? point.m_localPointA : point.m_localPointB;
            if (point.m_distance1 <= reach && mine.y() >= lowestGrip) {
                return Grip{contact.other, isFirst ? point.m_localPointB : point.m_localPointA};
            }
        }
    }
    return std::nullopt;
}

void Hands::take(const Grip& grip, bool silent) {
    held = grip.object;
    grabPoint = grip.point;
    const btTransform& there = heldBody().getWorldTransform();
    const btVector3 axis(0.0F, 0.0F, 1.0F);
    // About the middle of the character, not about the grip: what is held keeps its distance.
    joint = new btHingeConstraint(*owner().physicsObject->body, heldBody(), {0.0F, 0.0F, 0.0F},
                                  there.invXform(place().getOrigin()), axis, axis, true);
    const Yaw yaw = yawOf(there);
    holdAngle0 = bearingFromUp(there.getOrigin() - place().getOrigin());
    holdBase = std::atan2(yaw.sine, yaw.cosine) + holdAngle0;
    physicsModule().addConstraint(joint);
    if (!silent) {
        playHere("pick.wav");
    }
}

bool Hands::drop(bool silent) {
    const bool wasHolding = isHolding();
    if (wasHolding) {
        laidDown = Grip{held, grabPoint};
        laidDownStep = physicsModule().stepCount;
        physicsModule().removeConstraint(joint);
        if (!silent) {
            laidDown.reset();
            playHere("put.wav");
            lastUse = physicsModule().stepCount;
        }
    }
    joint = nullptr;
    held = nullptr;
    return wasHolding;
}

void Hands::update() {
    if (joint != nullptr && !isHolding()) {
        drop(true); // it has vanished; the next grab needs a new press
        reaching = false;
    }
    if (joint == nullptr || isLoose(*held) || heldBody().getNumConstraintRefs() > 1) {
        return;
    }
    const float back = std::max(std::abs(holdAngle0), swing);
    // The direction away from the aim says how far it turns: an aim below lifts it over the head,
    // one above, on the side where it was taken, leaves it there.
    const float wanted = bearingFromUp(place().getOrigin() - owner().aimPoint);
    const float steering =
        holdAngle0 >= 0.0F ? std::clamp(wanted, -back, swing) : std::clamp(wanted, -swing, back);
    const float target = holdBase + steering;
    joint->setLimit(target, target, softness, bias, relaxation);
}

bool Hands::holdAngle(float& angle) const {
    if (!isHolding()) {
        return false;
    }
    angle = angleFromUp(heldBody().getWorldTransform() * grabPoint - place().getOrigin());
    return true;
}

bool Hands::isReaching() const {
    return reaching && joint == nullptr;
}

bool Hands::hangsOnLooseObject() const {
    return isHolding() && isLoose(*held) && heldBody().getInvMass() != 0.0F;
}

void Hands::hurl() {
    const btVector3 here = place().getOrigin();
    btRigidBody& body = heldBody();
    float angle = bearingFromUp(owner().aimPoint - here);
    const float bearing = bearingFromUp(body.getWorldTransform().getOrigin() - here);
    if (std::abs(angle - bearing) > swing) {
        angle = angle > 0.0F ? swing : -swing; // steeply, and not through the character
    }
    float strength = throwImpulse;
    if (throwImpulse * body.getInvMass() > throwSpeed) {
        strength = throwSpeed / body.getInvMass();
    }
    drop(false);
    body.applyImpulse({strength * std::sin(angle), strength * std::cos(angle), 0.0F},
                      throwLever * grabPoint);
}

bool Hands::leapOff() {
    if (!isHolding() || (!isLoose(*held) && heldBody().hasContactResponse())) {
        return false;
    }
    btRigidBody& body = heldBody();
    drop(false);
    const btVector3 leap =
        physicsModule().worldFrame * btVector3(0.0F, owner().statistics.jump, 0.0F);
    body.applyCentralImpulse(-recoil * leap);
    owner().physicsObject->body->applyCentralImpulse(leap);
    owner().lastJumpStep = physicsModule().stepCount;
    reaching = true; // the next thing that is touched is seized: hand over hand
    return true;
}

void Hands::playHere(const char* sound) const {
    soundManager().play(sound, place().getOrigin(), reinterpret_cast<SoundOwner>(&owner()),
                        handVolume, true);
}
