#include "Ghost.h"

#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneObjectDescription.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

constexpr float radius = 20.0F;
constexpr float depth = 1.6F; // over the light map, so that it shines

SceneParts makeBody(float x, float y) {
    SceneObjectDescription description;
    description.friction = 1.0F;
    description.restitution = 1.0F;
    description.texture = textureStore().find("null.tga");
    description.z = depth;
    description.r = description.g = description.b = description.a = 0.0F;
    SceneParts parts = makeSphereParts(description, x, y, radius);
    parts.type = sceneObjectType::player;
    return parts;
}

ParticleParams makeGlow() {
    ParticleParams glow;
    glow.size = 10.0F;
    glow.z = depth;
    glow.texture = textureStore().find("particle14.tga");
    glow.life = 100.0F;
    glow.colour = {0.3F, 0.3F, 1.0F, 0.0F};
    glow.fade = glow.life;
    glow.endColour = {0.3F, 0.3F, 5.0F, 0.0F};
    glow.spin = 14.0F;
    glow.spread = 3.14F;
    glow.rate = 2.36F;
    glow.additive = 1;
    return glow;
}

} // namespace

Player* makeGhost(float x, float y) {
    auto* ghost = new Player(makeBody(x, y));
    btRigidBody& body = *ghost->physicsObject->body;
    body.setCollisionFlags(body.getCollisionFlags() | btCollisionObject::CF_NO_CONTACT_RESPONSE);
    ghost->contactNoise = false;
    ghost->addAddition(new ParticleEmiter(makeGlow()));
    return ghost;
}
