#pragma once

#include "GraphicsObjecte.h"

/// A polygon that follows a physics object, which it does not own. Stream type 2.
class PhysicsGraphicsObject : public GraphicsObjecte {
public:
    PhysicsGraphicsObject(const GraphicsObjectData& data, PhysicsObject* physicsObject);
    /// Reads what follows the type; the physics object is attached later.
    explicit PhysicsGraphicsObject(TextReader& stream);

    float getZ() const override { return z; }
    void setZ(float value) override { z = value; }
    void getTransform(btTransform& out) const override;
    /// The world transform of the body, the identity without one.
    btTransform& getTransformRef() override;
    void setPhysicsObject(PhysicsObject* object) override { physicsObject = object; }
    void write(TextWriter& stream) const override;
    void refreshTransform() override;

    PhysicsObject* physicsObject; ///< May be null.
    float z;
    btTransform localTransform; ///< Offset from the body.
};
