#include "PhysicsModule.h"

#include "CollisionRules.h"
#include "ImpactSounds.h"
#include "PhysicsObject.h"
#include "ProcessValues.h"
#include "btFixedWorld.h"
#include "myCollisionDispatcher.h"

// Fixed calls upward: a step is the clock of the whole game.
#include "graphicsModule/GraphicsModule.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObject.h"
#include "soundModule/SoundManager.h"

#include <BulletCollision/NarrowPhaseCollision/btPersistentManifold.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace {

void collectContact(const btCollisionObject& body, btPersistentManifold* manifold) {
    if ((traitsOf(body) & bodyTrait::wantsContacts) != 0) {
        physicsObjectOf(body)->contacts.push_back(manifold);
    }
}

// A level has more of everything than the processor's cache holds, and waiting for it was a quarter
// of some scans: they ask for what they read a few turns later.
constexpr std::size_t prefetchDistance = 6;

void prefetch(const PhysicsObject& object) {
    __builtin_prefetch(&object.kind);
    __builtin_prefetch(&object.previousTransform);
}
void prefetch(const btRigidBody& body) {
    __builtin_prefetch(&body.getWorldTransform());
    __builtin_prefetch(&body.getWorldTransform().getOrigin());
    __builtin_prefetch(&body.getInterpolationWorldTransform());
}
void prefetch(const SceneObject& object) {
    __builtin_prefetch(&object);
    __builtin_prefetch(&object.additions);
}

/// Walls and the like have none.
bool hasWork(const SceneObject& object) {
    return object.additionsWork || object.type != sceneObjectType::plain;
}
void prefetchAdditions(const SceneObject& object) {
    if (hasWork(object)) {
        __builtin_prefetch(object.additions.data());
    }
}

/// Whether they are the same, bit by bit: all at once, where the components compared one by one
/// would be nine branches.
bool isSame(const btTransform& a, const btTransform& b) {
    std::array<std::uint64_t, sizeof(btTransform) / sizeof(std::uint64_t)> left{};
    auto right = left;
    std::memcpy(left.data(), static_cast<const void*>(&a), sizeof a);
    std::memcpy(right.data(), static_cast<const void*>(&b), sizeof b);
    std::uint64_t difference = 0;
    for (std::size_t i = 0; i < left.size(); ++i) {
        difference |= left[i] ^ right[i];
    }
    return difference == 0;
}

void prefetch(const btPersistentManifold& manifold) {
    for (const int i : {0, 1}) {
        const btManifoldPoint& point = manifold.getContactPoint(i);
        __builtin_prefetch(&point.m_localPointA);
        __builtin_prefetch(&point.m_distance1);
    }
    __builtin_prefetch(&manifold.m_companionIdA); // beside the bodies and the count
}

void prefetchSpeeds(const btPersistentManifold& manifold) {
    for (const btCollisionObject* body : {manifold.getBody0(), manifold.getBody1()}) {
        __builtin_prefetch(&static_cast<const btRigidBody*>(body)->getLinearVelocity());
    }
}

} // namespace

PhysicsModule& physicsModule() {
    return service<PhysicsModule>();
}

void PhysicsModule::update() {
    prepareObjects();
    stepWorld();
    collectContacts();
    updateScene();
    soundManager().update();
    graphicsModule().updateStep();
    runScripts();
    sceneManager().ageDebris();
    sceneManager().flushRemovals();
    ++stepCount;
}

/// All that is done to each object, in one pass: it is the fetching of them that costs.
void PhysicsModule::prepareObjects() {
    const std::size_t count = physicsObjects.size();
    for (std::size_t i = 0; i < count; ++i) {
        PhysicsObject* object = physicsObjects[i];
        prefetch(*physicsObjects[std::min(i + 2 * prefetchDistance, count - 1)]);
        prefetch(*physicsObjects[std::min(i + prefetchDistance, count - 1)]->body);
        followMove(*object);
        object->contacts.clear();
        if (SceneObject* owner = sceneObjectOf(*object->body)) {
            storeTraits(*object->body, *owner);
            ++owner->age;
        }
    }
}

/// Bullet looks after the bounding boxes of what is awake; the walls that commands move are not.
void PhysicsModule::followMove(PhysicsObject& object) {
    const btTransform& place = object.body->getWorldTransform();
    if (!isSame(object.previousTransform, place)) {
        object.previousTransform = place;
        if (!object.body->isActive()) {
            world->updateSingleAabb(object.body.get());
        }
    }
}

void PhysicsModule::stepWorld() {
    if (physicsRunning != 0) {
        world->stepSimulation(physicsStep, 0, 1.0F / 60.0F);
    }
}

void PhysicsModule::collectContacts() {
    ImpactSounds sounds;
    btPersistentManifold** manifolds = dispatcher->getInternalManifoldPointer();
    const int count = dispatcher->getNumManifolds();
    for (int i = 0; i < count; ++i) {
        prefetch(*manifolds[std::min(i + 2 * static_cast<int>(prefetchDistance), count - 1)]);
        prefetchSpeeds(*manifolds[std::min(i + static_cast<int>(prefetchDistance), count - 1)]);
        collectContact(*manifolds[i]->getBody0(), manifolds[i]);
        collectContact(*manifolds[i]->getBody1(), manifolds[i]);
        sounds.hear(*manifolds[i]);
    }
    sounds.finish();
}

void PhysicsModule::updateScene() {
    if (physicsRunning == 0) {
        return;
    }
    soundManager().heartCount = 0; // whoever wants the heartbeat asks for it again in each step
    // By index: objects that are added meanwhile run in the same pass.
    const std::vector<SceneObject*>& actors = sceneManager().getActors();
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (std::size_t i = 0; i < actors.size(); ++i) {
        prefetch(*actors[std::min(i + 2 * prefetchDistance, actors.size() - 1)]);
        prefetchAdditions(*actors[std::min(i + prefetchDistance, actors.size() - 1)]);
        if (hasWork(*actors[i])) {
            actors[i]->update();
        }
    }
}
