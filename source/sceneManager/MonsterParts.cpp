#include "MonsterParts.h"

#include "graphicsModule/MultiGraphics.h"
#include "graphicsModule/PhysicsGraphicsObject.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsObject.h"

namespace {

GraphicsObject* makeQuad(const monsterLook::Quad& look, int texture, PhysicsObject* physics) {
    auto* quad = new PhysicsGraphicsObject(makeBoxData(look.halfWidth, look.halfHeight, texture,
                                                       monsterLook::depth, 1.0F, 0, look.red, 0.0F,
                                                       0.0F, 1.0F),
                                           physics);
    // In the vertices, which are stored, and not in a transform.
    quad->rotateVertices(look.turn);
    quad->moveBy(look.x, look.y);
    quad->updateLocalBounds();
    return quad;
}

} // namespace

SceneParts makeMonsterParts() {
    PhysicsObject* physics = createSphere(0.0F, 0.0F, monsterLook::bodyRadius, monsterLook::bounce,
                                          monsterLook::friction, monsterLook::mass);
    const int texture = textureStore().find(monsterLook::texture);
    auto* group = new MultiGraphics;
    for (const monsterLook::Quad& look : monsterLook::quads) {
        group->addChild(makeQuad(look, texture, physics));
    }
    return {physics, group, sceneObjectType::evilPlayer};
}

LightProperties makeEyeLight(float side) {
    LightProperties light;
    light.size = monsterLook::eyeHalf;
    light.red = light.green = light.blue = 1.0F;
    light.offsetX = light.shiftX = side * monsterLook::eyeX;
    light.offsetY = light.shiftY = monsterLook::eyeY;
    light.texture = textureStore().find(monsterLook::texture);
    return light;
}
