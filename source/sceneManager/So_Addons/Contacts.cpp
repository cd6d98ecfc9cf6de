#include "Contacts.h"

#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <BulletCollision/CollisionDispatch/btCollisionObject.h>
#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>

int Contact::pointsWithin(double slack, float leastImpulse) const {
    const double reach = static_cast<double>(body.getCollisionShape()->getMargin()) + slack;
    int count = 0;
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        const btManifoldPoint& point = manifold.getContactPoint(i);
        if (reach >= static_cast<double>(point.m_distance1) &&
            point.m_appliedImpulse >= leastImpulse) {
            ++count;
        }
    }
    return count;
}

void Contact::hurtOther(int damage, float leastImpulse) const {
    if (other == nullptr) {
        return;
    }
    const int points = pointsWithin(0.0, leastImpulse);
    for (int i = 0; i < points; ++i) {
        other->hurt(damage);
    }
}

bool Contact::comesWithin(float distance) const {
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        if (manifold.getContactPoint(i).m_distance1 <= distance) {
            return true;
        }
    }
    return false;
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
