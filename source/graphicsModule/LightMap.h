#pragma once

#include "GraphicsObject.h"
#include "ShadowStrips.h"

#include <array>
#include <vector>

class LightAdd;

/// A picture of the light that falls on the screen, whatever the screen's size: the ambient colour,
/// and on it each light, less what objects hide from it. It is drawn anew in each frame, in the
/// lower left corner of the back buffer, and copied to a texture before the scene takes over. Alpha
/// is the mask: while a light is drawn, it is there where shadows are. A window without alpha gets
/// a buffer of its own for the map.
class LightMap {
public:
    /// Once a window, when the textures are loaded.
    void setUp();

    // In each frame, in this order.
    void begin(const std::array<float, 3>& ambient);
    /// Draws those of the lights that the view shows. For a light that casts shadows, each of the
    /// objects that meet its bounds gets a `drawShadow`, with the logical screen for a transform,
    /// without a texture, and adding to alpha alone: 1 shuts the light out, a half lets half of it
    /// through.
    void drawLights(const std::vector<LightAdd*>& lights,
                    const std::vector<GraphicsObject*>& objects, const Bounds& view);
    // Here pixels of the map can be read.
    void finish(); ///< Keeps the picture in the texture.
    void bind() const;

    ShadowStrips shadows; ///< For `drawShadow` of what is shaped like a polygon.

private:
    enum class Place {
        backBuffer,
        offscreen,
        unmasked, ///< The back buffer, with all lights drawn as if nothing stood in their way.
    };

    void choosePlace();
    void noteBounds(const std::vector<GraphicsObject*>& objects);
    static void drawPlain(LightAdd& light);
    void drawShadowed(LightAdd& light, const std::vector<GraphicsObject*>& objects);

    int lightTexture = -1; // name on the painter's device
    Place place = Place::backBuffer;
    std::vector<Bounds> bounds; // of the objects, in their order
};
