#pragma once

#include "Level.h"

namespace mapc {

/// Turns the editor's places (pixels, y down, degrees clockwise) into the world's.
class Placement {
public:
    explicit Placement(Point worldOrigin) : origin(worldOrigin) {}

    Point toWorld(Point pixel) const { return {pixel.x - origin.x, origin.y - pixel.y}; }
    /// The frame of the object: its anchor in the editor, its turn.
    Pose frameOf(const TiledObject& object) const;
    /// The middle of a rectangle or ellipse, the place of a point or polygon.
    Point centreOf(const TiledObject& object) const;

private:
    Point origin;
};

/// A shape around its own centre of area, and where that lies.
struct PlacedShape {
    Shape shape;
    Pose pose;
};

/// The shape of an object that has one: box, disc, convex outline, or, if asked for, a mesh.
/// @throws std::string if the drawing is degenerate or of a kind that cannot be used
PlacedShape buildShape(const TiledObject& object, const Placement& placement, bool asMesh);

/// The outline of the shape in the world; of a disc, its centre and radius.
ConvexArea areaOf(const Shape& shape, const Pose& pose);

} // namespace mapc
