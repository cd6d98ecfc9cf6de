#pragma once

#include "SceneObject.h"

#include <LinearMath/btVector3.h>

class MultiGraphics;
class PhysicsGraphicsObject;

/// Where the parts of the protagonist stand to its body: world units and radians.
struct ProtagonistPose {
    btVector3 backLeg{-1.0F, 0.0F, 0.0F};
    btVector3 frontLeg{1.0F, 0.0F, 0.0F};
    float bob = 0.0F; ///< Height of body and arm.
    float arm = 0.0F; ///< From straight up, counter-clockwise.
};

/// The protagonist's graphics, a group of polygons in drawing order: the leg behind, the body, the
/// leg in front, and as the last the arm, which turns about its lower end. A view of a group that
/// somebody else owns.
class ProtagonistParts {
public:
    /// Whether a group from a file has the parts.
    static bool fit(const GraphicsObject& graphics);

    /// The graphics must fit.
    explicit ProtagonistParts(GraphicsObject& graphics);

    /// Which way the texture coordinates have it look.
    bool looksLeft() const;
    /// Mirrors all but the arm.
    void look(bool left);
    void take(const ProtagonistPose& pose);

private:
    PhysicsGraphicsObject& part(std::size_t index) const;

    MultiGraphics& group;
};

/// A new protagonist at (500, 500): a round body, and parts that look left. The parts belong to the
/// caller.
SceneParts makeProtagonistParts();
