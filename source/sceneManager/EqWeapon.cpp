#include "EqWeapon.h"

#include "Equipment.h"
#include "Player.h"
#include "SceneManager.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <cmath>

EqWeapon::EqWeapon(float launchSpeed, float muzzleDistance)
    : lastUse(physicsModule().stepCount),
      speed(launchSpeed),
      muzzle(muzzleDistance) {}

bool EqWeapon::isReady() const {
    return physicsModule().stepCount >= lastUse + static_cast<std::uint32_t>(period);
}

SceneObject* EqWeapon::use(float x, float y, float angle, float a, float /*b*/) {
    if (equipment == nullptr || !isReady()) {
        return nullptr;
    }
    const btVector3 direction(-std::sin(angle), std::cos(angle), 0.0F);
    const btVector3 place = btVector3(x, y, 0.0F) + muzzle * direction;
    const btVector3 velocity =
        equipment->owner->physicsObject->body->getLinearVelocity() + speed * direction;
    SceneObject* projectile = makeProjectile(place.x(), place.y(), a, velocity.x(), velocity.y());
    if (projectile != nullptr) {
        sceneManager().addSceneObject(projectile);
    }
    lastUse = physicsModule().stepCount;
    return projectile;
}
