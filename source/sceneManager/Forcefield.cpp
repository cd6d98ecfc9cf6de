#include "Forcefield.h"

#include "So_Addons/Contacts.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

constexpr float reach = 0.1F; // world units between the shapes within which the field acts

bool isWithinReach(const btPersistentManifold& manifold) {
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        if (manifold.getContactPoint(i).m_distance1 <= reach) {
            return true;
        }
    }
    return false;
}

} // namespace

Forcefield::Forcefield(const SceneParts& parts, float forceX, float forceY)
    : SceneObject(parts),
      force(forceX, forceY, 0.0F) {
    type = sceneObjectType::forcefield;
    physicsObject->wantsContacts = true;
    btRigidBody& body = *physicsObject->body;
    body.setCollisionFlags(body.getCollisionFlags() | btCollisionObject::CF_NO_CONTACT_RESPONSE);
    contactNoise = false;
}

void Forcefield::save(TextWriter& stream) const {
    SceneObject::save(stream);
    stream << force.x() << force.y();
}

void Forcefield::update() {
    SceneObject::update();
    if (force.isZero()) {
        return;
    }
    for (const btPersistentManifold* manifold : manifoldsOf(this)) {
        const Contact contact = contactOf(this, *manifold);
        if (contact.other != nullptr && isWithinReach(*manifold)) {
            push(*contact.other);
        }
    }
}

void Forcefield::push(const SceneObject& other) const {
    btRigidBody& body = *other.physicsObject->body;
    if (body.isStaticObject() || body.getInvMass() == 0.0F) {
        return;
    }
    const float mass = 1.0F / body.getInvMass();
    body.applyCentralForce(force * (physicsModule().gravityStrength * 10.0F * mass));
}

SceneObject* Forcefield::load(TextReader& stream, const SceneParts& parts) {
    if (parts.physics == nullptr) {
        stream.fail();
    }
    const auto x = stream.read<float>();
    const auto y = stream.read<float>();
    return new Forcefield(parts, x, y);
}
