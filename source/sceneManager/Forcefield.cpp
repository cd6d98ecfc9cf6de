#include "Forcefield.h"

#include "So_Addons/Bodies.h"
#include "So_Addons/Contacts.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

/// World units between the shapes within which the field acts.
static constexpr float reach = 0.1F;

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
    const btVector3 acceleration = force * (physicsModule().gravityStrength * 10.0F);
    for (const btPersistentManifold* manifold : manifoldsOf(this)) {
        const Contact contact = contactOf(this, *manifold);
        if (contact.comesWithin(reach)) {
            accelerate(contact.other, acceleration);
        }
    }
}

SceneObject* Forcefield::load(TextReader& stream, const SceneParts& parts) {
    if (parts.physics == nullptr) {
        stream.fail();
    }
    const auto x = stream.read<float>();
    const auto y = stream.read<float>();
    return new Forcefield(parts, x, y);
}
