#include "IntroStage.h"

#include "Ghost.h"
#include "StoryMonsters.h"
#include "game/commands/NamedObjects.h"
#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/TextureStore.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"

#include <LinearMath/btVector3.h>

namespace {

// Only compared and asked for after the scene has said that it still holds them.
SceneObject* backdrop = nullptr;
SceneObject* partner = nullptr;

SceneObject* ifInScene(SceneObject* object) {
    return sceneManager().contains(object) ? object : nullptr;
}

ParticleEmiter* emitterOf(const SceneObject* object) {
    So_Addition* found =
        object != nullptr ? object->findAddition(AdditionType::particleEmiter) : nullptr;
    return static_cast<ParticleEmiter*>(found);
}

SceneObject* addSphere(float x, float y, float radius, const ParticleParams& spray) {
    SceneObjectDescription description;
    description.friction = 0.4F;
    description.texture = 0;
    auto* sphere = new SceneObject(makeSphereParts(description, 0.0F, 0.0F, radius));
    putAt(*sphere, btVector3(x, y, 0.0F));
    sphere->addAddition(new ParticleEmiter(spray));
    sceneManager().addSceneObject(sphere);
    return sphere;
}

void addPuppet(float x, float y, bool awake) {
    Player* puppet = makePuppet();
    putAt(*puppet, btVector3(x, y, 0.0F));
    sceneManager().addSceneObject(puppet);
    partner = puppet;
    if (awake) {
        introMonster()->lightEyes();
    }
}

void addPartner(const IntroStage& stage) {
    const auto [x, y] = stage.partnerPlace;
    switch (stage.partner) {
    case IntroPartner::none:
        return;
    case IntroPartner::cloud:
        addCloud(x, y, stage.radius, particlesOf(*stage.spray), {0.1F, 0.0F, 0.0F, 0.0F});
        return;
    case IntroPartner::ghost:
    case IntroPartner::unlitGhost:
        addIntroGhost(x, y, stage.partner == IntroPartner::ghost);
        return;
    case IntroPartner::monster:
    case IntroPartner::wakingMonster:
        addPuppet(x, y, stage.partner == IntroPartner::wakingMonster);
        return;
    }
}

} // namespace

SceneObject* introBackdrop() {
    return ifInScene(backdrop);
}

SceneObject* introPartner() {
    return ifInScene(partner);
}

EvilPlayer* introMonster() {
    return EvilPlayer::of(introPartner());
}

ParticleEmiter* introEmiter() {
    return emitterOf(introBackdrop());
}

ParticleEmiter* introPartnerEmiter() {
    return emitterOf(introPartner());
}

void buildStage(const IntroStage& stage) {
    backdrop = nullptr;
    partner = nullptr;
    if (stage.spray != nullptr) {
        backdrop = addSphere(stage.place.x, stage.place.y, stage.radius, particlesOf(*stage.spray));
    }
    addPartner(stage);
}

void addCloud(float x, float y, float radius, ParticleParams spray,
              const std::array<float, 4>& endTint) {
    spray.colour = {0.1F, 0.01F, 0.01F, 1.0F};
    spray.endColour = endTint;
    partner = addSphere(x, y, radius, spray);
}

void addIntroGhost(float x, float y, bool lit) {
    partner = makeGhost(x, y);
    sceneManager().addSceneObject(partner);
    if (!lit) {
        introPartnerEmiter()->params.rate = 0.0F;
    }
}

ParticleParams particlesOf(const Spray& spray) {
    ParticleParams params;
    params.size = spray.size;
    params.z = spray.z;
    params.texture = textureStore().find("particle14.tga");
    params.life = spray.life;
    params.fade = spray.life;
    params.endColour = {spray.grey, spray.grey, spray.grey, 0.0F};
    params.speed = spray.speed;
    params.spin = 8.0F;
    params.spread = 3.14F;
    params.rate = spray.rate;
    params.additive = 1;
    return params;
}
