#include "LightAdd.h"

#include "GraphicsModule.h"
#include "Random.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneObject.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float largestSize = 1e6F;
constexpr float weakest = 0.5F;       // of a flickering light's strengths; the strongest is 1.5
constexpr float wander = 4.0F;        // width of the square that the point of shadows wanders in
constexpr float drawRange = 32767.0F; // of the random generator

float finite(float value) {
    return std::isfinite(value) ? value : 0.0F;
}

/// A damaged map may hold any number; what is drawn with must stay a number.
LightProperties drawable(LightProperties look) {
    for (float* value : {&look.size, &look.red, &look.green, &look.blue, &look.offsetX,
                         &look.offsetY, &look.shiftX, &look.shiftY}) {
        *value = finite(*value);
    }
    look.size = std::clamp(look.size, -largestSize, largestSize);
    return look;
}

/// The light's square. Its alpha is 0: a light adds colour to the map and leaves the mask alone.
GraphicsObjectData makeLightData(const LightProperties& light) {
    return makeBoxData(light.size, light.size, light.texture, 0.0F, 1.0F, 1, light.red, light.green,
                       light.blue, 0.0F);
}

} // namespace

LightAdd::LightAdd(const LightProperties& look)
    : So_Addition(AdditionType::light),
      PhysicsGraphicsObject(makeLightData(drawable(look)), nullptr),
      offset{finite(look.offsetX), finite(look.offsetY)},
      prevOffset(offset),
      nextOffset(offset),
      properties(drawable(look)) {
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
    properties = drawable(look);
    data = makeLightData(properties);
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
        if (GraphicsObject* lamp = owner->visibleGraphics()) {
            lamp->setCastsShadow(0); // a lamp does not stand in its own light
        }
        state = State::lit;
    }
    if (properties.flickerPeriod > 1) {
        flicker(physicsModule().stepCount, owner->seed);
    }
}

/// Lights of one period change together, each owner's in its own way.
void LightAdd::flicker(std::uint32_t tick, std::uint32_t ownerSeed) {
    const auto half = static_cast<std::uint32_t>(properties.flickerPeriod / 2);
    const std::uint32_t within = tick % half;
    if (within == 0) {
        startSegment(tick, ownerSeed);
    }
    const float share = static_cast<float>(within) / static_cast<float>(half);
    const float intensity = share * nextIntensity + (1.0F - share) * prevIntensity;
    const auto glowing = [intensity](float c) { return std::clamp(c * intensity, 0.0F, 1.0F); };
    setColour(glowing(properties.red), glowing(properties.green), glowing(properties.blue), 0.0F);
    offset = {nextOffset.x * share + prevOffset.x * (1.0F - share),
              nextOffset.y * share + prevOffset.y * (1.0F - share)};
}

void LightAdd::startSegment(std::uint32_t tick, std::uint32_t ownerSeed) {
    prevIntensity = nextIntensity;
    prevOffset = nextOffset;
    const auto first = static_cast<std::uint32_t>(drawRandom(tick));
    const float chance = static_cast<float>(drawRandom(first + ownerSeed)) / drawRange;
    nextIntensity = weakest + chance;
    // One draw serves both axes: slow along x, and through the whole width along y meanwhile.
    const float place = chance * wander * wander;
    nextOffset = {properties.offsetX + place / wander - wander / 2.0F,
                  properties.offsetY + std::fmod(place, wander) - wander / 2.0F};
}

void LightAdd::refreshTransform() {
    PhysicsGraphicsObject::refreshTransform();
    btTransform transform;
    getTransform(transform);
    shadowOrigin = transform * btVector3(offset.x, offset.y, 0.0F);
}

void LightAdd::draw() {
    if (state == State::lit) {
        GraphicsObjecte::draw();
    }
}

void LightAdd::drawGlow() {
    if (properties.flickerPeriod % 2 == 1) {
        draw();
    }
}
