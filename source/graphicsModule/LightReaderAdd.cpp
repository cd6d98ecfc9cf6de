#include "LightReaderAdd.h"

#include "GraphicsModule.h"
#include "Painter.h"
#include "ProcessValues.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <algorithm>

namespace {

bool isOnMap(int pixel) {
    return pixel >= 0 && pixel <= lightMapSize;
}

std::uint8_t toByte(float channel) {
    return static_cast<std::uint8_t>(std::clamp(channel * 255.0F, 0.0F, 255.0F));
}

} // namespace

LightReaderAdd::LightReaderAdd() : So_Addition(AdditionType::lightReader) {
    graphicsModule().lightReaders.insert(this);
}

LightReaderAdd::~LightReaderAdd() {
    if (auto* module = existingService<GraphicsModule>()) {
        module->lightReaders.erase(this);
    }
}

So_Addition* LightReaderAdd::read(TextReader&) {
    return new LightReaderAdd;
}

void LightReaderAdd::update(SceneObject* newOwner) {
    active = true;
    owner = newOwner;
}

void LightReaderAdd::sample() {
    if (!active || owner->physicsObject == nullptr) {
        return;
    }
    const btVector3 place = owner->physicsObject->getRenderTransform().getOrigin();
    int px = 0;
    int py = 0;
    graphicsModule().worldToLightMap(place.x(), place.y(), px, py);
    onScreen = isOnMap(px) && isOnMap(py);
    if (onScreen) {
        const auto pixel = painter().device().readPixel(std::min(px, windowWidth - 1),
                                                        std::min(py, windowHeight - 1));
        red = pixel[0];
        green = pixel[1];
        blue = pixel[2];
    } else {
        const Colour3& ambient = graphicsModule().ambient;
        red = toByte(ambient[0]);
        green = toByte(ambient[1]);
        blue = toByte(ambient[2]);
    }
}
