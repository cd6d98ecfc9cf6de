#include "StoredObjects.h"

#include "SceneObject.h"

#include <BulletDynamics/ConstraintSolver/btTypedConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <iostream>

namespace {

constexpr int leaving = -2; // in place of an index

} // namespace

StoredObjects::StoredObjects(const std::vector<SceneObject*>& objects) {
    stored.reserve(objects.size());
    places.reserve(objects.size());
    for (const SceneObject* object : objects) {
        if (object->visibleGraphics() != nullptr) {
            places.emplace(object, static_cast<int>(stored.size()));
            stored.push_back(object);
        } else {
            places.emplace(object, leaving);
        }
    }
}

int StoredObjects::indexOf(const btRigidBody& body) const {
    const auto place = places.find(body.getUserPointer());
    if (place == places.end()) {
        std::cout << "getNumberOfSceneObject: niema takiego obiektu SceneObject\n";
        return -1;
    }
    return place->second;
}

bool StoredObjects::holds(const btTypedConstraint& joint) const {
    return !isLeaving(joint.getRigidBodyA()) && !isLeaving(joint.getRigidBodyB());
}

bool StoredObjects::isLeaving(const btRigidBody& body) const {
    const auto place = places.find(body.getUserPointer());
    return place != places.end() && place->second == leaving;
}
