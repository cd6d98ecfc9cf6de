#include "Contacts.h"

#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <BulletCollision/CollisionDispatch/btCollisionObject.h>
#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>

int Contact::pointsWithin(double slack) const {
    const double reach = static_cast<double>(body.getCollisionShape()->getMargin()) + slack;
    int count = 0;
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        if (reach >= static_cast<double>(manifold.getContactPoint(i).m_distance1)) {
            ++count;
        }
    }
    return count;
}

bool Contact::overlaps() const {
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        if (manifold.getContactPoint(i).m_distance1 < 0.0F) {
            return true;
        }
    }
    return false;
}

std::span<btPersistentManifold* const> manifoldsOf(const SceneObject* object) {
    if (object == nullptr || object->physicsObject == nullptr) {
        return {};
    }
    return object->physicsObject->contacts;
}

Contact contactOf(const SceneObject* object, const btPersistentManifold& manifold) {
    const bool isFirst = manifold.getBody0()->getUserPointer() == object;
    const btCollisionObject& body = isFirst ? *manifold.getBody1() : *manifold.getBody0();
    return {manifold, body, static_cast<SceneObject*>(body.getUserPointer())};
}
