#include "EmitterRecord.h"

#include "ObjectClass.h"
#include "TextStream.h"

#include <numbers>

namespace mapc {

namespace {

constexpr float usualSize = 6.0F;
constexpr float usualLife = 120.0F;
constexpr float usualRate = 0.2F;
constexpr float halfTurn = 180.0F; // degrees

float number(const Properties& properties, const char* name, float fallback, float least) {
    const float value = properties.number(name, fallback);
    if (value < least) {
        throw std::string("property \"") + name + "\" must not be below " +
            std::to_string(static_cast<int>(least));
    }
    return value;
}

float radians(float degrees) {
    return degrees / halfTurn * std::numbers::pi_v<float>;
}

void writeColour(TextWriter& stream, const Colour& colour) {
    stream << colour.r << colour.g << colour.b << colour.a;
}

} // namespace

Emitter readEmitter(const TiledObject& source, const ObjectClass& objectClass) {
    const Properties& properties = source.properties;
    Emitter emitter;
    emitter.size = number(properties, "size", usualSize, 0.0F);
    emitter.z = properties.number("z", objectClass.z);
    emitter.texture = textureOf(properties, objectClass);
    emitter.life = number(properties, "life", usualLife, 1.0F);
    emitter.colour = properties.colour("colour", {});
    emitter.fade = number(properties, "fade", emitter.life, 0.0F);
    emitter.endSize = number(properties, "endSize", 0.0F, 0.0F);
    Colour gone = emitter.colour;
    gone.a = 0.0F;
    emitter.endColour = properties.colour("endColour", gone);
    emitter.speed = properties.number("speed", 0.0F);
    emitter.gravity = {properties.number("gravityX", 0.0F), properties.number("gravityY", 0.0F)};
    emitter.spin = radians(properties.number("spin", 0.0F));
    emitter.spread = radians(number(properties, "spread", halfTurn, 0.0F));
    emitter.rate = number(properties, "rate", usualRate, 0.0F);
    emitter.additive = properties.flag("additive", false);
    return emitter;
}

void writeEmitter(TextWriter& stream, const Emitter& emitter) {
    stream << emitter.size << emitter.z;
    stream << (emitter.texture.empty() ? "unknown" : emitter.texture.c_str());
    stream << emitter.life;
    writeColour(stream, emitter.colour);
    stream << emitter.fade << emitter.endSize;
    writeColour(stream, emitter.endColour);
    stream << emitter.speed << emitter.gravity.x << emitter.gravity.y << emitter.spin
           << emitter.spread << emitter.rate << static_cast<int>(emitter.additive);
}

} // namespace mapc
