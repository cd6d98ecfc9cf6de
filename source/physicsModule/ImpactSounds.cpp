#include "ImpactSounds.h"

#include "CollisionRules.h"
#include "graphicsModule/GraphicsModule.h"
#include "soundModule/SoundManager.h"

#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cstdint>

namespace {

constexpr float thudDepth = -0.5F;    ///< A thud needs this much overlap, world units.
constexpr float thudImpulse = 100.0F; ///< A thud needs more impulse than this.
constexpr int impulsePerMote = 100;   ///< One mote of dust for each of these.
constexpr SoundOwner thudOwner = 1;   ///< All thuds share one owner.
constexpr float rollSpeed = 4.0F;     ///< Rolling needs more than this, world units a second.
constexpr float rollDistance = 3.5F;  ///< Further apart nothing rolls, world units.
constexpr int loudest = 128;

std::uint8_t volumeOf(float loudness) {
    return static_cast<std::uint8_t>(std::clamp(loudness, 0.0F, static_cast<float>(loudest)));
}

bool isThud(const btManifoldPoint& point) {
    return point.m_distance1 < thudDepth && point.m_lifeTime == 1 &&
           point.m_appliedImpulse > thudImpulse;
}

void playThud(const btManifoldPoint& point) {
    const int impulse =
        static_cast<int>(std::min(point.m_appliedImpulse, static_cast<float>(INT32_MAX / 2)));
    graphicsModule().spawnDust(point.m_positionWorldOnA,
                               static_cast<unsigned>(impulse / impulsePerMote));
    soundManager().play("thud.wav", point.m_positionWorldOnA, thudOwner,
                        volumeOf(point.m_appliedImpulse * 0.5F), true);
}

} // namespace

void ImpactSounds::hear(const btPersistentManifold& manifold) {
    const auto& a = static_cast<const btRigidBody&>(*manifold.getBody0());
    const auto& b = static_cast<const btRigidBody&>(*manifold.getBody1());
    if ((traitsOf(a) & traitsOf(b) & bodyTrait::makesNoise) == 0) {
        return;
    }
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        const btManifoldPoint& point = manifold.getContactPoint(i);
        if (isThud(point)) {
            playThud(point);
            return; // one thud a pair and step
        }
        if (!(point.m_distance1 < rollDistance)) {
            continue;
        }
        const btVector3 slip = a.getVelocityInLocalPoint(point.m_localPointA) -
                               b.getVelocityInLocalPoint(point.m_localPointB);
        if (slip.length2() > rollSpeed * rollSpeed) {
            const auto owner = reinterpret_cast<SoundOwner>(sceneObjectOf(a));
            soundManager().play("roll.wav", point.m_positionWorldOnA, owner,
                                volumeOf(slip.length()), true);
            rolling = true;
        }
    }
}

void ImpactSounds::finish() const {
    if (!rolling) {
        soundManager().stopAll("roll.wav");
    }
}
