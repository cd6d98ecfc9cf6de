#include "DamageAdd.h"

#include "Contacts.h"
#include "TextStream.h"

DamageAdd::DamageAdd(TextReader& stream) : DamageAdd(0, 0.0F) {
    stream >> damage >> threshold;
}

void DamageAdd::save(TextWriter& stream) const {
    So_Addition::save(stream);
    stream << damage << threshold;
}

void DamageAdd::update(SceneObject* owner) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        contactOf(owner, *manifold).hurtOther(damage, threshold);
    }
}
