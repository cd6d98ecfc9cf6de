#include "LightAdd.h"

#include "GraphicsModule.h"
#include "sceneManager/SceneObject.h"

namespace {

/// The light's square. Its alpha is 0: a light adds colour to the map and leaves the mask alone.
GraphicsObjectData makeLightData(const LightProperties& light) {
    return makeBoxData(light.size, light.size, light.texture, 0.0F, 1.0F, 1, light.red, light.green,
                       light.blue, 0.0F);
}

} // namespace

LightAdd::LightAdd(const LightProperties& look)
    : So_Addition(AdditionType::light),
      PhysicsGraphicsObject(makeLightData(look), nullptr),
      properties(look) {
    if (properties.shiftX != 0.0F || properties.shiftY != 0.0F) {
        GraphicsObjecte::moveBy(properties.shiftX, properties.shiftY);
        GraphicsObjecte::updateLocalBounds();
    }
    GraphicsObjecte::mapTexcoordsToBounds();
    graphicsModule().addLight(this);
}

LightAdd::~LightAdd() {
    if (auto* module = existingService<GraphicsModule>()) {
        module->detachObject(this);
    }
}

So_Addition* LightAdd::read(TextReader& stream) {
    return new LightAdd(LightProperties(stream));
}

void LightAdd::setProperties(const LightProperties& look) {
    properties = look;
    data = makeLightData(look);
    setZ(data.z);
    mapTexcoordsToBounds();
    updateLocalBounds();
}

void LightAdd::save(TextWriter& stream) const {
    So_Addition::save(stream);
    properties.write(stream);
}

void LightAdd::update(SceneObject* owner) {
    setPhysicsObject(owner->physicsObject); // anew each time, since the owner may change its body
    if (state == State::waiting) {
        owner->graphicsObject->setCastsShadow(0); // a lamp does not stand in its own light
        state = State::lit;
    }
}

void LightAdd::draw() {
    if (state == State::lit) {
        GraphicsObjecte::draw();
    }
}
