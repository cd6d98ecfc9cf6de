#include "LightRecord.h"

#include "ObjectClass.h"
#include "TextStream.h"

#include <algorithm>

namespace mapc {

namespace {

/// Half the side of the light's square: told, or as large as it was drawn.
float sizeOf(const TiledObject& source) {
    const float drawn = std::max(source.width, source.height) * 0.5F;
    const float told = source.properties.number("size", 0.0F);
    if (told < 0.0F) {
        throw std::string("property \"size\" must not be below 0");
    }
    if (told == 0.0F && drawn == 0.0F) {
        throw std::string("needs a size: the property, or the ellipse that it is drawn as");
    }
    return told > 0.0F ? told : drawn;
}

/// The engine tells glowing lights by an odd period; below 2 nothing flickers.
int periodOf(const Properties& properties) {
    const int steps = properties.integer("flicker", 0);
    if (steps < 0) {
        throw std::string("property \"flicker\" must not be below 0");
    }
    return steps / 2 * 2 + (properties.flag("glow", false) ? 1 : 0);
}

} // namespace

Light readLight(const TiledObject& source, const ObjectClass& objectClass) {
    const Properties& properties = source.properties;
    Light light;
    light.size = sizeOf(source);
    light.colour = properties.colour("colour", {});
    light.colour.a *= source.opacity;
    light.flickerPeriod = periodOf(properties);
    light.castsShadows = properties.flag("shadows", true);
    light.texture = textureOf(properties, objectClass);
    return light;
}

void writeLight(TextWriter& stream, const Light& light) {
    const Colour& colour = light.colour;
    stream << light.size << colour.r * colour.a << colour.g * colour.a << colour.b * colour.a;
    stream << light.flickerPeriod << light.castsShadows;
    // First where its shadows come from, then where it stands.
    stream << light.place.x << light.place.y << light.place.x << light.place.y;
    stream << (light.texture.empty() ? "unknown" : light.texture.c_str());
}

} // namespace mapc
