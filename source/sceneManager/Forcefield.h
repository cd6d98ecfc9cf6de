#pragma once

#include "SceneObject.h"

#include <LinearMath/btVector3.h>

/// Things pass through it and are pushed on their way.
class Forcefield : public SceneObject {
public:
    /// The parts must have a physics object. The force is a multiple of the world's gravity: (0, 1)
    /// holds any body up against it.
    Forcefield(const SceneParts& parts, float forceX, float forceY);

    void save(TextWriter& stream) const override;
    void update() override;
    /// Reads the force that follows an object's record and builds the object.
    static SceneObject* load(TextReader& stream, const SceneParts& parts);

    btVector3 force;
};
