#include "DestructionObject.h"

#include "TextStream.h"

void DestructionObject::save(TextWriter& stream) const {
    SceneObject::save(stream);
    stream << markers.size();
    for (const auto& [first, second] : markers) {
        stream << first << second;
    }
}

SceneObject* DestructionObject::load(TextReader& stream, const SceneParts& parts) {
    std::vector<std::pair<std::int64_t, std::int64_t>> read(stream.readCount());
    for (auto& [first, second] : read) {
        stream >> first >> second;
    }
    auto* object = new DestructionObject(parts);
    object->markers = std::move(read);
    return object;
}
