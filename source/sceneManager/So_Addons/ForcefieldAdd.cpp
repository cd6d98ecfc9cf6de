#include "ForcefieldAdd.h"

#include "Bodies.h"
#include "Contacts.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

ForcefieldAdd::ForcefieldAdd(TextReader& stream) : ForcefieldAdd(stream.read<float>()) {}

void ForcefieldAdd::save(TextWriter& stream) const {
    So_Addition::save(stream);
    stream << power;
}

void ForcefieldAdd::update(SceneObject* owner) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        const Contact contact = contactOf(owner, *manifold);
        if (contact.comesWithin(0.0F)) {
            const float strength = physicsModule().gravityStrength * power * 10.0F;
            const btMatrix3x3& turn = bodyOf(owner)->getWorldTransform().getBasis();
            accelerate(contact.other, turn * btVector3(0.0F, strength, 0.0F));
        }
    }
}
