#include "ParticleParams.h"

#include "TextStream.h"
#include "TextureStore.h"

namespace {

void readColour(TextReader& stream, std::array<float, 4>& colour) {
    for (float& channel : colour) {
        stream >> channel;
    }
}

void writeColour(TextWriter& stream, const std::array<float, 4>& colour) {
    for (const float channel : colour) {
        stream << channel;
    }
}

} // namespace

ParticleParams::ParticleParams(TextReader& stream) {
    stream.setRecord("particle emitter");
    stream >> size >> z;
    texture = textureStore().find(stream.read<std::string>());
    stream >> life;
    readColour(stream, colour);
    stream >> fade >> endSize;
    readColour(stream, endColour);
    stream >> speed >> gravityX >> gravityY >> spin >> spread >> rate >> additive;
}

void ParticleParams::write(TextWriter& stream) const {
    stream << size << z << textureStore().nameOf(texture) << life;
    writeColour(stream, colour);
    stream << fade << endSize;
    writeColour(stream, endColour);
    stream << speed << gravityX << gravityY << spin << spread << rate << additive;
}
