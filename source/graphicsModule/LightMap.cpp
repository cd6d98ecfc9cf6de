#include "LightMap.h"

#include "Camera.h"
#include "GraphicsModule.h"
#include "LightAdd.h"
#include "ProcessValues.h"
#include "TextureStore.h"

#include <algorithm>
#include <iostream>

namespace {

/// Of the part of the map that the light can reach.
struct PixelBox {
    int x, y, width, height;
};

PixelBox boxOf(const Bounds& bounds) {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
    graphicsModule().worldToLightMap(bounds.left, bounds.bottom, left, bottom);
    graphicsModule().worldToLightMap(bounds.right, bounds.top, right, top);
    const auto clip = [](int pixel) { return std::clamp(pixel, 0, lightMapSize); };
    return {clip(left), clip(bottom), clip(right) - clip(left), clip(top) - clip(bottom)};
}

} // namespace

void LightMap::setUp() {
    PaintDevice& device = painter().device();
    choosePlace();
    lightTexture = device.createTextureName();
    textureStore().bind(lightTexture);
    device.uploadTexture(lightTexture, lightMapSize, lightMapSize, TextureFormat::rgba, false,
                         nullptr);
    textureStore().bind(-1);
}

void LightMap::choosePlace() {
    PaintDevice& device = painter().device();
    place = Place::backBuffer;
    if (device.alphaBits() > 0) {
        return;
    }
    // One pixel more than the map, for readers at its very edge.
    if (device.createOffscreen(lightMapSize + 1, lightMapSize + 1)) {
        place = Place::offscreen;
        std::cout << "the window has no alpha: lights are drawn in a framebuffer object\n";
    } else {
        place = Place::unmasked;
        std::cout << "neither the window nor a framebuffer object has alpha: lights will cast no "
                     "shadows\n";
    }
}

void LightMap::begin(const std::array<float, 3>& ambient) {
    Painter& paint = painter();
    if (place == Place::offscreen) {
        paint.device().setOffscreen(true);
    }
    textureStore().bind(-1);
    paint.clear(ambient[0], ambient[1], ambient[2], 0.0F);
    paint.setViewport(0, 0, lightMapSize, lightMapSize);
    paint.setDepthTest(false);
}

void LightMap::drawLights(const std::vector<LightAdd*>& lights,
                          const std::vector<GraphicsObject*>& objects, const Bounds& view) {
    shadows.beginFrame(*graphicsModule().camera);
    bool boundsNoted = false;
    for (LightAdd* light : lights) {
        if (!light->isLit() || !light->getBounds().overlaps(view)) {
            continue;
        }
        if (!light->getProperties().castsShadows || place == Place::unmasked) {
            drawPlain(*light);
            continue;
        }
        if (!boundsNoted) {
            noteBounds(objects);
            boundsNoted = true;
        }
        drawShadowed(*light, objects);
    }
}

/// Side by side, so that the walk through all objects for each light runs along one array.
void LightMap::noteBounds(const std::vector<GraphicsObject*>& objects) {
    bounds.clear();
    for (const GraphicsObject* object : objects) {
        bounds.push_back(object->getBounds());
    }
}

void LightMap::drawPlain(LightAdd& light) {
    Painter& paint = painter();
    paint.setScissor(0, 0, windowWidth, windowHeight);
    paint.setColourMask(true, false);
    paint.setBlend(BlendMode::add);
    light.draw();
}

void LightMap::drawShadowed(LightAdd& light, const std::vector<GraphicsObject*>& objects) {
    const Bounds lightBounds = light.getBounds();
    const PixelBox box = boxOf(lightBounds);
    if (box.width <= 0 || box.height <= 0) {
        return;
    }
    Painter& paint = painter();
    paint.setScissor(box.x, box.y, box.width, box.height);

    paint.setColourMask(false, true);
    paint.setBlend(BlendMode::add);
    textureStore().bind(-1); // a lamp's picture must not thin the shadows
    for (std::size_t i = 0; i < objects.size(); ++i) {
        if (bounds[i].overlaps(lightBounds)) {
            objects[i]->drawShadow(light);
        }
    }

    paint.setColourMask(true, false);
    paint.setBlend(BlendMode::unmasked);
    light.draw();

    // The next light begins without a mask, everywhere in this one's box.
    paint.setColourMask(false, true);
    paint.setBlend(BlendMode::replace);
    textureStore().bind(-1);
    paint.rectangle(0.0F, 0.0F, logicalWidth, logicalHeight, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F);
}

void LightMap::finish() {
    PaintDevice& device = painter().device();
    textureStore().bind(lightTexture);
    device.copyToBoundTexture(lightMapSize, lightMapSize);
    if (place == Place::offscreen) {
        device.setOffscreen(false);
    }
}

void LightMap::bind() const {
    textureStore().bind(lightTexture);
}
