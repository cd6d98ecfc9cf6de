#pragma once

#include "Painter.h"
#include "ShadowOutline.h"

#include <span>
#include <vector>

class Camera;
class GraphicsObjecte;
class LightAdd;

/// Casts the shadows of convex polygons: from the side of a polygon that a light reaches, a strip
/// of quads runs away from the light, far beyond the light's own square. The polygon lies under the
/// strip, so that what blocks a light is itself dark to it. A light inside a polygon reaches no
/// side of it and passes through.
class ShadowStrips {
public:
    /// Forgets the outlines of the frame before. The camera is the one that the strips are seen by.
    void beginFrame(const Camera& camera);
    /// Paints the strip in opaque black. World vertices are worked out once a frame, on first need.
    void draw(const GraphicsObjecte& polygon, ShadowOutline& note, const LightAdd& light);

private:
    using Outline = std::span<const PaintPoint>;

    /// A run of vertices, round the end of the outline if need be.
    struct Chain {
        std::size_t first;
        std::size_t count; ///< 0 if there is none.
    };

    Outline outlineOf(const GraphicsObjecte& polygon, ShadowOutline& note);
    Chain findLitChain(Outline outline, PaintPoint light);
    Chain longestLitChain(std::size_t edges) const;
    void buildStrip(Outline outline, const Chain& chain, const LightAdd& light, float z);
    void paintStrip(float parallax) const;

    std::uint32_t frame = 0;
    const Camera* view = nullptr; // not owned
    PaintTransform worldView;     // of what moves with the world
    int lowShape = -1;            // texture of the things that cast a lower shadow
    // Kept from frame to frame, so that a steady one allocates nothing.
    std::vector<PaintPoint> vertices; // of all outlines of this frame, world units
    std::vector<float> sides;         // of an outline's edges; below 0 if the light reaches them
    std::vector<PaintPoint> strip;    // near and far points in turn
};
