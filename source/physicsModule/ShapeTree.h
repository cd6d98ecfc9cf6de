#pragma once

#include <memory>
#include <vector>

class btCollisionShape;

/// Deletes a shape with everything under it: the children of a compound and the outline inside a
/// flat convex shape, which Bullet leaves to whoever made them.
struct ShapeTreeDeleter {
    void operator()(btCollisionShape* shape) const;
};

/// A collision shape that owns its children.
using ShapeTree = std::unique_ptr<btCollisionShape, ShapeTreeDeleter>;

// The shapes of the plane, in world units, each with its middle at the origin.
ShapeTree makeDisc(float radius);
ShapeTree makeBox(float halfWidth, float halfHeight);
/// `points` alternates x and y and describes a convex outline.
ShapeTree makeOutline(const std::vector<float>& points);
