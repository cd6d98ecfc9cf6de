#pragma once

#include "GraphicsObjecte.h"

/// A polygon that holds its own transform. The origin's z is its depth. Stream type 1.
class TransformGraphicsObject : public GraphicsObjecte {
public:
    TransformGraphicsObject(float x, float y, const GraphicsObjectData& data);
    /// Reads what follows the type.
    explicit TransformGraphicsObject(TextReader& stream);

    float getZ() const override;
    void setZ(float z) override;
    void moveBy(float dx, float dy) override;
    void getTransform(btTransform& out) const override { out = transform; }
    btTransform& getTransformRef() override { return transform; }
    void write(TextWriter& stream) const override;

private:
    btTransform transform;
};
