#include "SceneObjectDescription.h"

#include "graphicsModule/PhysicsGraphicsObject.h"
#include "graphicsModule/TransformGraphicsObject.h"
#include "physicsModule/PhysicsObject.h"

namespace {

/// `physics` is null for scenery.
SceneParts assemble(const GraphicsObjectData& data, PhysicsObject* physics, float x, float y) {
    SceneParts parts;
    if (physics != nullptr) {
        parts = {physics, new PhysicsGraphicsObject(data, physics), sceneObjectType::plain};
    } else {
        parts = {nullptr, new TransformGraphicsObject(x, y, data), sceneObjectType::withoutPhysics};
    }
    parts.graphics->regenerateTexcoords();
    return parts;
}

} // namespace

SceneParts makeSphereParts(const SceneObjectDescription& d, float x, float y, float radius) {
    const GraphicsObjectData data =
        makeCircleData(radius, d.texture, d.z, d.parallax, d.texcoordMode, d.r, d.g, d.b, d.a);
    PhysicsObject* physics =
        d.physical ? createSphere(x, y, radius, d.restitution, d.friction, d.mass) : nullptr;
    return assemble(data, physics, x, y);
}

SceneParts makeBoxParts(const SceneObjectDescription& d, float x, float y, float halfWidth,
                        float halfHeight) {
    const GraphicsObjectData data = makeBoxData(halfWidth, halfHeight, d.texture, d.z, d.parallax,
                                                d.texcoordMode, d.r, d.g, d.b, d.a);
    PhysicsObject* physics =
        d.physical ? createBox(x, y, halfWidth, halfHeight, d.restitution, d.friction, d.mass)
                   : nullptr;
    return assemble(data, physics, x, y);
}
