#include "NamedObjects.h"

#include "Random.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/Hands.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/Contacts.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>

PhysicsObject* physicsOf(const std::string& object) {
    const SceneObject* found = sceneManager().getSceneObject(object);
    return found != nullptr ? found->physicsObject : nullptr;
}

bool placeOf(const std::string& object, btVector3& place) {
    const PhysicsObject* physics = physicsOf(object);
    if (physics != nullptr) {
        place = physics->body->getWorldTransform().getOrigin();
    }
    return physics != nullptr;
}

const btVector3& placeOf(const SceneObject& object) {
    return object.physicsObject->body->getWorldTransform().getOrigin();
}

bool isOverProtagonist(const btVector3& place) {
    constexpr float room = 60.0F; // units to each side
    const SceneObject* player = sceneManager().player;
    return player != nullptr && std::abs(placeOf(*player).x() - place.x()) < room;
}

void putAt(SceneObject& object, const btVector3& place) {
    PhysicsObject& physics = *object.physicsObject;
    physics.body->getWorldTransform().setOrigin(place);
    physics.settle();
}

SceneObject* touchWithin(const SceneObject* object, const std::string& name) {
    for (const btPersistentManifold* manifold : manifoldsOf(object)) {
        const Contact contact = contactOf(object, *manifold);
        if (contact.other != nullptr && contact.other->hasName(name) &&
            contact.pointsWithin(0.0) > 0) {
            return contact.other;
        }
    }
    return nullptr;
}

bool touchesProtagonist(const SceneObject* object, double slack) {
    const auto manifolds = manifoldsOf(object);
    return std::any_of(manifolds.begin(), manifolds.end(), [&](const btPersistentManifold* one) {
        const Contact contact = contactOf(object, *one);
        return contact.other != nullptr && contact.other == sceneManager().player &&
               contact.pointsWithin(slack) > 0;
    });
}

bool releaseJoint(const std::string& object) {
    btTypedConstraint* joint = firstJoint(sceneManager().getSceneObject(object));
    if (joint != nullptr) {
        physicsModule().removeConstraint(joint);
    }
    return joint != nullptr;
}

void zap(const btVector3& place) {
    soundManager().playAt("electro" + std::to_string(drawRandom() % 4 + 1) + ".wav", place);
}

void burst(SceneObject* object, float speed, float particles) {
    auto* emitter =
        static_cast<ParticleEmiter*>(object->findAddition(AdditionType::particleEmiter));
    if (emitter == nullptr) {
        return;
    }
    const float usual = emitter->params.speed;
    emitter->params.speed = speed;
    emitter->randomSpeed = true;
    emitter->accumulator += particles;
    emitter->update(object);
    emitter->params.speed = usual;
}

void emptyHands(const Player& character) {
    EqItem* item = character.equipment->current;
    if (item != nullptr && item->getType() == itemType::hands) {
        static_cast<Hands*>(item)->drop(false);
    }
}
