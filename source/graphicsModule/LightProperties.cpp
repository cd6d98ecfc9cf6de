#include "LightProperties.h"

#include "TextStream.h"
#include "TextureStore.h"

LightProperties::LightProperties(TextReader& stream) {
    stream.setRecord("light");
    stream >> size >> red >> green >> blue >> flickerPeriod >> castsShadows;
    stream >> offsetX >> offsetY >> shiftX >> shiftY;
    texture = textureStore().find(stream.read<std::string>());
}

void LightProperties::write(TextWriter& stream) const {
    stream << size << red << green << blue << flickerPeriod << castsShadows;
    stream << offsetX << offsetY << shiftX << shiftY << textureStore().nameOf(texture);
}
