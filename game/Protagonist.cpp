#include "Protagonist.h"

#include "graphicsModule/MultiGraphics.h"
#include "graphicsModule/PhysicsGraphicsObject.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <string>
#include <vector>

namespace {

constexpr float bodyRadius = 15.0F;
constexpr float restitution = 0.0F; // lands without a hop
constexpr float friction = 1.0F;
constexpr float mass = 1.0F;
constexpr float linearDamping = 0.5F;
constexpr float legSize = 15.0F; // half of a side
constexpr float bodySize = 16.0F;
constexpr float depth = -0.4F;
constexpr int texcoordsByBounds = 0;

/// What no map stores of the character's body.
void setUpBody(btRigidBody& body) {
    body.setDamping(linearDamping, 0.0F);
    // Contacts rub along x only, so that walls do not hold a jump back.
    body.setAnisotropicFriction(btVector3(1.0F, 0.0F, 0.0F));
}

GraphicsObject* makePart(const char* texture, float size, PhysicsObject* physics) {
    auto* part =
        new PhysicsGraphicsObject(makeBoxData(size, size, textureStore().find(texture), depth, 1.0F,
                                              texcoordsByBounds, 1.0F, 1.0F, 1.0F, 1.0F),
                                  physics);
    part->regenerateTexcoords();
    // The pictures look left, and the way through the level leads right.
    std::vector<float>& texcoords = part->getData().texcoords;
    for (std::size_t u = 0; u < texcoords.size(); u += 2) {
        texcoords[u] = 1.0F - texcoords[u];
    }
    return part;
}

Player* makeProtagonist(const btVector3& position) {
    PhysicsObject* physics =
        createSphere(position.x(), position.y(), bodyRadius, restitution, friction, mass);
    auto* looks = new MultiGraphics; // in drawing order
    looks->addChild(makePart("leg.tga", legSize, physics));
    looks->addChild(makePart("tolm.tga", bodySize, physics));
    looks->addChild(makePart("leg2.tga", legSize, physics));
    return new Player({physics, looks, sceneObjectType::player});
}

} // namespace

Player& placeProtagonist() {
    for (SceneObject* object : sceneManager().objects) {
        if (object->type == sceneObjectType::player) {
            setUpBody(*object->physicsObject->body);
            return *object->asPlayer();
        }
    }
    const btRigidBody* start = bodyOf(sceneManager().getSceneObject("STARTPOS"));
    if (start == nullptr) {
        throw std::string("the map has neither a protagonist nor an object named STARTPOS");
    }
    Player* player = makeProtagonist(start->getWorldTransform().getOrigin());
    setUpBody(*player->physicsObject->body);
    sceneManager().addSceneObject(player);
    return *player;
}
