#include "GraphicsModule.h"

#include "Camera.h"
#include "FrameOrder.h"
#include "InterfaceGraphicsObject.h"
#include "LightAdd.h"
#include "LightMap.h"
#include "LightReaderAdd.h"
#include "Painter.h"
#include "ProcessValues.h"
#include "Steam.h"
#include "TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/btFixedWorld.h"
#include "platform/Window.h"

#include <algorithm>
#include <cmath>

namespace {

// The slices of the scene by z. What lies up to `litTop` is multiplied by the light map; above it
// objects take the ambient colour themselves, under the glows up to `glowZ` and over them beyond.
constexpr float litTop = 1.0F;
constexpr float glowZ = 1.5F;
constexpr float litBottom = -2.0F; // what lies behind it, such as a sky, keeps its own colours
constexpr float brightnessZ = 950.0F;

Bounds viewOf(const Camera& camera) {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;
    camera.getViewRect(left, bottom, right, top);
    return {static_cast<float>(left), static_cast<float>(bottom), static_cast<float>(right),
            static_cast<float>(top)};
}

bool isVisible(const InterfaceGraphicsObject& overlay) {
    float r = 0.0F;
    float g = 0.0F;
    float b = 0.0F;
    float a = 0.0F;
    overlay.getColour(r, g, b, a);
    return a != 0.0F;
}

/// Over the whole logical screen.
void paintScreen(float z, float grey) {
    painter().rectangle(0.0F, 0.0F, logicalWidth, logicalHeight, z, grey, grey, grey, 1.0F);
}

void paintViewDiagonal(const Bounds& view, const Camera& camera) {
    const PaintVertex ends[] = {{view.left, view.bottom, 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F},
                                {view.right, view.top, 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F}};
    painter().pushTransform();
    camera.applyTransform(1.0F);
    textureStore().bind(-1);
    painter().lines(ends);
    painter().popTransform();
}

} // namespace

void GraphicsModule::update() {
    beginFrame();
    refreshObjects();
    drawLightMap();
    drawScene();
    drawInterface();
    drawCursor();
    removeDeadObjects();
    drawDebugLayer();
    drawBrightness();
    painter().flush();
    platform::window().swapBuffers();
}

void GraphicsModule::beginFrame() {
    steam().runCallbacks();
    camera->update();
    const PhysicsModule& physics = physicsModule();
    physicsFraction = static_cast<float>(std::min(physics.accumulator / physics.period, 1.0));
    view = viewOf(*camera);
}

void GraphicsModule::refreshObjects() {
    for (LightAdd* light : lights) {
        light->refreshTransform();
        light->updateBounds();
    }
    for (GraphicsObject* object : objects) {
        object->refreshTransform();
        object->updateBounds();
    }
    sortForDrawing(objects);
}

void GraphicsModule::drawLightMap() {
    lightMap->begin(ambient);
    lightMap->drawLights(lights, objects, view);
    for (LightReaderAdd* reader : lightReaders) {
        reader->sample();
    }
    lightMap->finish();
}

void GraphicsModule::drawScene() {
    Painter& paint = painter();
    setViewport();
    paint.setScissor(0, 0, windowWidth, windowHeight);
    paint.setColourMask(true, true);
    paint.clear(ambient[0], ambient[1], ambient[2], 1.0F);
    paint.setBlend(BlendMode::alpha);
    paint.setDepthTest(true);

    drawLitSlice();
    if (debugDraw) {
        paintViewDiagonal(view, *camera);
    }
    multiplyLightMap();
    paint.setBlend(BlendMode::alpha);
    drawTintedSlice();
    drawGlows();
    paint.setBlend(BlendMode::alpha);
    drawFrontSlice();
    if (isVisible(*sceneFade)) {
        sceneFade->draw();
    }
}

void GraphicsModule::drawLitSlice() {
    painter().setAlphaTest(true);
    for (GraphicsObject* object : objects) {
        if (object->getZ() <= litTop) {
            object->draw();
        }
    }
    painter().setAlphaTest(false);
}

/// The reversed depth test lets the map through only where something of the lit slice stands.
void GraphicsModule::multiplyLightMap() {
    Painter& paint = painter();
    paint.setBlend(BlendMode::multiply);
    lightMap->bind();
    paint.setDepthFunction(DepthFunction::greaterOrEqual);
    paintScreen(litBottom, 1.0F);
    paint.setDepthFunction(DepthFunction::lessOrEqual);
}

void GraphicsModule::drawTintedSlice() {
    for (GraphicsObject* object : objects) {
        if (const float z = object->getZ(); z > litTop && z < glowZ) {
            object->draw();
        }
    }
}

/// Lamps themselves, as opposed to what they shine on.
void GraphicsModule::drawGlows() {
    Painter& paint = painter();
    paint.pushTransform();
    paint.translate(0.0F, 0.0F, glowZ);
    paint.setBlend(BlendMode::add);
    for (LightAdd* light : lights) {
        light->drawGlow();
    }
    paint.popTransform();
}

void GraphicsModule::drawFrontSlice() {
    for (GraphicsObject* object : objects) {
        if (object->getZ() >= glowZ) {
            object->draw();
        }
    }
}

void GraphicsModule::drawInterface() {
    sortForDrawing(interfaceObjects);
    painter().setBlend(BlendMode::alpha);
    for (GraphicsObject* object : interfaceObjects) {
        object->draw();
    }
    if (isVisible(*screenFade)) {
        screenFade->draw();
    }
}

void GraphicsModule::drawCursor() {
    int x = 0;
    int y = 0;
    platform::window().getMousePosition(x, y);
    x = std::clamp(x, 0, std::max(windowWidth, 0)) - letterboxX;
    y = std::clamp(y, 0, std::max(windowHeight, 0)) - letterboxY;
    const auto width = static_cast<float>(std::max(windowWidth - 2 * letterboxX, 1));
    const auto height = static_cast<float>(std::max(windowHeight - 2 * letterboxY, 1));
    cursor->moveTo(static_cast<float>(x) * logicalWidth / width,
                   logicalHeight - static_cast<float>(y) * logicalHeight / height);
    cursor->updateBounds();
    cursor->draw();
}

void GraphicsModule::removeDeadObjects() {
    for (GraphicsObject* object : deadObjects) {
        removeObject(object);
    }
    deadObjects.clear();
}

void GraphicsModule::drawDebugLayer() {
    if (debugDraw) {
        physicsModule().world->debugDrawWorld();
    }
}

/// Each pixel becomes its value times one plus the share of `brightness` beyond a whole number.
void GraphicsModule::drawBrightness() {
    const float share = std::fmod(brightness, 1.0F);
    if (share > 0.0F) {
        painter().setBlend(BlendMode::brighten);
        textureStore().bind(-1);
        paintScreen(brightnessZ, share);
    }
}
