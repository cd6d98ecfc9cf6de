#include "GraphicsModule.h"

#include "ParticleEmiter.h"
#include "TextureStore.h"

namespace {

constexpr float allDirections = 3.1415927F; // half the angle of a full circle, radians

ParticleParams bloodParams() {
    ParticleParams params;
    params.texture = textureStore().find("particle.tga");
    params.size = 10.0F;
    params.life = 20.0F;
    params.colour = {1.0F, 0.0F, 0.0F, 1.0F};
    params.fade = 20.0F;
    params.endSize = 20.0F;
    params.endColour = {1.0F, 0.0F, 0.0F, 0.0F};
    params.speed = 150.0F;
    params.gravityY = -3.0F;
    params.spin = 5.0F;
    params.spread = allDirections;
    return params;
}

ParticleParams dustParams() {
    ParticleParams params;
    params.texture = textureStore().find("particle8.tga");
    params.size = 25.0F;
    params.life = 40.0F;
    params.colour = {0.2F, 0.2F, 0.2F, 1.0F};
    params.fade = 30.0F;
    params.endSize = 30.0F;
    params.endColour = {0.8F, 0.8F, 0.8F, 0.0F};
    params.speed = 50.0F;
    params.gravityY = 3.0F;
    params.spin = 5.0F;
    params.spread = allDirections;
    return params;
}

ParticleParams sparkParams() {
    ParticleParams params;
    params.texture = textureStore().find("particle14.tga");
    params.size = 25.0F;
    params.z = 2.0F; // over the light map: sparks shine in the dark
    params.life = 40.0F;
    params.colour = {0.4F, 0.4F, 0.1F, 1.0F};
    params.fade = 30.0F;
    params.endSize = 30.0F;
    params.endColour = {0.1F, 0.0F, 0.0F, 0.0F};
    params.speed = 100.0F;
    params.gravityY = 3.0F;
    params.spin = 5.0F;
    params.spread = allDirections;
    params.additive = 1;
    return params;
}

} // namespace

void GraphicsModule::createEmitters() {
    // Each registers itself; dust comes first, so that blood lies over it.
    dustEmiter = new ParticleEmiter(dustParams());
    bloodEmiter = new ParticleEmiter(bloodParams());
    sparkEmiter = new ParticleEmiter(sparkParams());
}

void GraphicsModule::spawnDust(const btVector3& position, unsigned count) {
    dustEmiter->burst(position, count);
}

void GraphicsModule::spawnBlood(const btVector3& position, unsigned count) {
    bloodEmiter->burst(position, count);
}

void GraphicsModule::spawnSparks(const btVector3& position, unsigned count) {
    sparkEmiter->burst(position, count);
}
