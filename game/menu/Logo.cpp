#include "Logo.h"

#include "graphicsModule/GraphicsObjecte.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/TextureStore.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"

namespace {

SceneObject* makeLogo() {
    SceneObjectDescription look;
    look.friction = 0.4F;
    look.texture = textureStore().find("tolmere.tga");
    look.z = 1.999F;
    const SceneParts parts = makeBoxParts(look, 400.0F, 250.0F, 200.0F, 50.0F);
    auto* picture = static_cast<GraphicsObjecte*>(parts.graphics);
    picture->mapTexcoordsToBounds(); // the picture once, not a piece of an endless wall of it
    picture->ignoreAmbient = true;
    return new SceneObject(parts);
}

LightProperties lampLook() {
    LightProperties look;
    look.size = 300.0F;
    look.red = look.green = look.blue = 0.5F;
    look.flickerPeriod = 40;
    look.shiftX = -10.0F;
    look.texture = textureStore().find("light1.tga");
    return look;
}

ParticleParams sparkLook() {
    ParticleParams look;
    look.size = 20.0F;
    look.z = 3.5F;
    look.texture = textureStore().find("particle14.tga");
    look.life = 300.0F;
    look.fade = 300.0F;
    look.endColour = {0.7F, 0.2F, 0.4F, 0.0F};
    look.speed = 20.0F;
    look.spin = 8.0F;
    look.spread = 3.14F;
    look.rate = 0.36F;
    look.additive = 1;
    return look;
}

} // namespace

void addLogo() {
    SceneObject* logo = makeLogo();
    logo->addAddition(new LightAdd(lampLook()));
    logo->addAddition(new ParticleEmiter(sparkLook()));
    sceneManager().addSceneObject(logo);
}
