#pragma once

#include "PhysicsGraphicsObject.h"

/// A list of triangles, three consecutive vertices each, for shapes that no convex polygon can
/// hold. Neither culled nor tinted. Stream type 4.
class TriangleMesh : public PhysicsGraphicsObject {
public:
    explicit TriangleMesh(const GraphicsObjectData& data);
    explicit TriangleMesh(TextReader& stream);

    void draw() override;
    void write(TextWriter& stream) const override;
};
