#include "Protagonist.h"

#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/TestPlayer.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <string>

Player& placeProtagonist() {
    const auto& objects = sceneManager().objects;
    const auto found =
        std::find_if(objects.rbegin(), objects.rend(), [](const SceneObject* object) {
            return object->type == sceneObjectType::testPlayer;
        });
    if (found != objects.rend()) {
        return *(*found)->asPlayer();
    }
    const btRigidBody* start = bodyOf(sceneManager().getSceneObject("STARTPOS"));
    if (start == nullptr) {
        throw std::string("the map has neither a protagonist nor an object named STARTPOS");
    }
    auto* player = new TestPlayer;
    player->physicsObject->body->getWorldTransform().setOrigin(
        start->getWorldTransform().getOrigin());
    sceneManager().addSceneObject(player);
    return *player;
}
