#pragma once

#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/PhysicsGraphicsObject.h"
#include "graphicsModule/Text.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObject.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/So_Addition.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <functional>

// Bodies in a scene, for tests of the world.

inline SceneObject* addToScene(PhysicsObject* physics) {
    const GraphicsObjectData look = makeBoxData(1, 1, -1, 0, 1, 1, 1, 1, 1, 1);
    auto* object = new SceneObject({physics, new PhysicsGraphicsObject(look, physics)});
    sceneManager().addSceneObject(object);
    return object;
}

inline SceneObject* addBox(float x, float y, float halfWidth, float halfHeight, float mass) {
    return addToScene(createBox(x, y, halfWidth, halfHeight, 0.0F, 0.5F, mass));
}

inline btRigidBody& bodyOf(const SceneObject& object) {
    return *object.physicsObject->body;
}

inline const btVector3& originOf(const SceneObject& object) {
    return bodyOf(object).getWorldTransform().getOrigin();
}

/// Puts it there, at rest.
inline void put(const SceneObject& object, float x, float y) {
    bodyOf(object).getWorldTransform().setOrigin({x, y, 0.0F});
    bodyOf(object).setLinearVelocity({0.0F, 0.0F, 0.0F});
}

/// From now on the body is only felt. Returns the object.
inline SceneObject* letThrough(SceneObject* object) {
    bodyOf(*object).setCollisionFlags(bodyOf(*object).getCollisionFlags() |
                                      btCollisionObject::CF_NO_CONTACT_RESPONSE);
    return object;
}

/// A static square with a name, and with a chain if one is given.
inline SceneObject* addNamed(const std::string& name, float x, float y, float half = 10.0F,
                             const std::string& chain = "") {
    SceneObject* box = addBox(x, y, half, half, 0.0F);
    if (!chain.empty()) {
        box->addAddition(parseScript(chain));
    }
    box->addAddition(parseScript("NAME " + name));
    return box;
}

/// A character of radius 15 without friction, which is the protagonist.
inline Player* addPlayer(float x, float y) {
    PhysicsObject* physics = createSphere(x, y, 15.0F, 0.0F, 0.0F, 1.0F);
    const GraphicsObjectData look = makeBoxData(1, 1, -1, 0, 1, 1, 1, 1, 1, 1);
    auto* player =
        new Player({physics, new PhysicsGraphicsObject(look, physics), sceneObjectType::player});
    sceneManager().addSceneObject(player);
    sceneManager().player = player;
    return player;
}

inline float alphaOf(const GraphicsObject& object) {
    Colour4 colour{};
    object.getColour(colour[0], colour[1], colour[2], colour[3]);
    return colour[3];
}

/// The lines that hang in the scene, one behind the other.
inline std::string shownLine() {
    std::string line;
    for (const GraphicsObject* object : graphicsModule().getObjects()) {
        if (const auto* text = dynamic_cast<const Text*>(object)) {
            line += text->getText();
        }
    }
    return line;
}

/// Runs what it is given once a step, and tells when it dies.
class Probe : public So_Addition {
public:
    explicit Probe(std::function<void()> work, int* deathCount = nullptr)
        : So_Addition(AdditionType::customCallback),
          job(std::move(work)),
          deaths(deathCount) {}
    ~Probe() override {
        if (deaths != nullptr) {
            ++*deaths;
        }
    }
    void update(SceneObject*) override { job(); }

private:
    std::function<void()> job;
    int* deaths;
};
