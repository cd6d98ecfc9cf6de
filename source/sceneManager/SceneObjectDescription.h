#pragma once

#include "SceneObject.h"

/// What a new ball or box is made of.
struct SceneObjectDescription {
    bool physical = true; ///< With a body; else it is scenery that nothing touches.
    float friction = 0.5F;
    float restitution = 0.0F; ///< 0 to 1.
    float mass = 0.0F;        ///< 0 makes a static body.
    int texcoordMode = 1;     ///< 0 bounds, 1 world, 2 mixed.
    float parallax = 1.0F;    ///< 1 moves with the world, 0 stays on the screen.
    int texture = -1;         ///< Handle of the `TextureStore`, -1 for none.
    float z = 0.0F;           ///< Depth, larger is nearer.
    float r = 1.0F, g = 1.0F, b = 1.0F, a = 1.0F; ///< Colour, 0 to 1.
};

// Makers. x and y place the centre, sizes are world units; the parts belong to the caller.
SceneParts makeSphereParts(const SceneObjectDescription& description, float x, float y,
                           float radius);
SceneParts makeBoxParts(const SceneObjectDescription& description, float x, float y,
                        float halfWidth, float halfHeight);
