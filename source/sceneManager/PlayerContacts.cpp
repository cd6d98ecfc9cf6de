// What a character stands on and runs into, read from the contacts that its body collected in this
// step.

#include "Player.h"

#include "SceneManager.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cassert>
#include <cmath>

/// One contact point, seen from the character.
struct FootContact {
    SceneObject* other;
    const btManifoldPoint& point;
    const btVector3& local;      ///< In the character's own coordinates, world units.
    const btVector3& otherLocal; ///< In the other body's coordinates.
    float halfWidth;             ///< Half the character's width.

    const btRigidBody& otherBody() const { return *other->physicsObject->body; }
    float distance() const { return point.m_distance1; }
    /// Whether the point lies under the character and at least `margin` inside its sides.
    bool isUnderFeet(float margin) const {
        return local.y() < 0.0F && std::abs(local.x()) < halfWidth - margin;
    }
};

namespace {

constexpr int passableKind = 2;          // characters move through bodies of this kind
constexpr std::uint32_t graceSteps = 18; // how long a lost support still serves a jump
constexpr float sideMargin = 1.0F;       // world units from the rim that count as a side
constexpr float groundMargin = 0.05F;    // share of the half width that is no ground
constexpr float footMargin = 0.5F;       // world units from the rim that take no impulse
constexpr float footReach = 0.01F;       // greatest distance of a point that takes an impulse

float halfWidthOf(const btRigidBody& body) {
    btVector3 low;
    btVector3 high;
    body.getAabb(low, high);
    return (high.x() - low.x()) / 2.0F;
}

bool counts(const SceneObject& other) {
    return other.physicsObject->body->hasContactResponse() &&
           other.physicsObject->kind != passableKind;
}

/// Calls `visit` with each point of each manifold that counts, in order, until it returns true,
/// which is then the result.
template <class Visit>
bool visitContacts(const Player& player, Visit visit) {
    const float halfWidth = halfWidthOf(*player.physicsObject->body);
    for (const btPersistentManifold* manifold : player.physicsObject->contacts) {
        auto* first = static_cast<SceneObject*>(manifold->getBody0()->getUserPointer());
        auto* second = static_cast<SceneObject*>(manifold->getBody1()->getUserPointer());
        const bool isFirst = first == &player;
        [[maybe_unused]] const SceneObject* me = isFirst ? first : second;
        assert(me == &player);
        SceneObject* other = isFirst ? second : first;
        if (!counts(*other)) {
            continue;
        }
        for (int i = 0; i < manifold->getNumContacts(); ++i) {
            const btManifoldPoint& point = manifold->getContactPoint(i);
            const btVector3& onFirst = point.m_localPointA;
            const btVector3& onSecond = point.m_localPointB;
            if (visit(FootContact{other, point, isFirst ? onFirst : onSecond,
                                  isFirst ? onSecond : onFirst, halfWidth})) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

void Player::scanContacts(float threshold) {
    leftFree = true;
    rightFree = true;
    const bool grounded = visitContacts(*this, [this, threshold](const FootContact& contact) {
        if (contact.distance() > threshold) {
            return false;
        }
        blockSides(contact);
        if (!contact.isUnderFeet(contact.halfWidth * groundMargin)) {
            return false;
        }
        standOn(contact);
        return true;
    });
    if (!grounded) {
        loseGround();
    }
}

void Player::blockSides(const FootContact& contact) {
    if (contact.otherBody().getInvMass() != 0.0F) {
        return;
    }
    // One wall at a time: the last contact read wins.
    if (contact.local.x() < sideMargin - contact.halfWidth) {
        leftFree = false;
        rightFree = true;
    }
    if (contact.local.x() > contact.halfWidth - sideMargin) {
        leftFree = true;
        rightFree = false;
    }
}

void Player::standOn(const FootContact& contact) {
    supportNow = contact.other;
    supportRecent = contact.other;
    const btRigidBody& support = contact.otherBody();
    contactOffset = support.getWorldTransform().getBasis() * contact.otherLocal;
    supportVelocity = support.getVelocityInLocalPoint(contactOffset);
    supportVelocity.setZ(0.0F);
    lastGroundStep = physicsModule().stepCount;
}

void Player::loseGround() {
    supportNow = nullptr;
    const bool inGrace = physicsModule().stepCount - lastGroundStep < graceSteps;
    if (!inGrace || !sceneManager().contains(supportRecent) ||
        supportRecent->physicsObject == nullptr) {
        supportRecent = nullptr;
    }
}

float Player::footImpulse() {
    float strongest = 0.0F;
    visitContacts(*this, [&strongest](const FootContact& contact) {
        if (contact.distance() <= footReach && contact.isUnderFeet(footMargin)) {
            strongest = std::max(strongest, contact.point.m_appliedImpulse);
        }
        return false;
    });
    return strongest;
}
