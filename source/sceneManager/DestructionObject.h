#pragma once

#include "SceneObject.h"

#include <utility>

/// An object that carries a list of marks through the map file. In all else a plain object.
class DestructionObject : public SceneObject {
public:
    explicit DestructionObject(const SceneParts& parts) : SceneObject(parts) {}

    void save(TextWriter& stream) const override;
    /// Reads the marks that follow an object's record and builds the object.
    static SceneObject* load(TextReader& stream, const SceneParts& parts);

    std::vector<std::pair<std::int64_t, std::int64_t>> markers;
};
