#include "SceneManager.h"

#include "graphicsModule/GraphicsObject.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/ConstraintSolver/btTypedConstraint.h>

#include <utility>

SceneBundle::SceneBundle(SceneBundle&& other) noexcept
    : objects(std::exchange(other.objects, {})),
      joints(std::exchange(other.joints, {})) {}

SceneBundle& SceneBundle::operator=(SceneBundle&& other) noexcept {
    std::swap(objects, other.objects);
    std::swap(joints, other.joints);
    return *this;
}

SceneBundle::~SceneBundle() {
    for (btTypedConstraint* joint : joints) { // refer to bodies, so they go first
        delete joint;
    }
    for (SceneObject* object : objects) {
        delete object->graphicsObject;
        delete object->physicsObject;
        delete object;
    }
}
