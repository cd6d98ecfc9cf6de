#include "GraphicsModule.h"

#include "Files.h"
#include "FreeCamera.h"
#include "InterfaceGraphicsObject.h"
#include "LightAdd.h"
#include "LightMap.h"
#include "ModuleManager.h"
#include "Painter.h"
#include "ParticleEmiter.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "TextureStore.h"
#include "platform/Window.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>

namespace {

constexpr float sceneFadeZ = 50.0F;
constexpr float cursorZ = 900.0F;
constexpr float screenFadeZ = 920.0F;
constexpr double pictureAspect = 1.6; // of the logical screen

template <class T>
void addUnique(std::vector<T*>& list, T* object) {
    if (std::find(list.begin(), list.end(), object) != list.end()) {
        std::cout << "there already is such GraphicsObject!\n";
        return;
    }
    list.push_back(object);
}

/// Takes the object out of the list; false if it is not there.
template <class T>
bool takeOut(std::vector<T*>& list, const GraphicsObject* object) {
    const auto found = std::find_if(list.begin(), list.end(), [object](T* listed) {
        return static_cast<GraphicsObject*>(listed) == object;
    });
    if (found == list.end()) {
        return false;
    }
    list.erase(found);
    return true;
}

void removeFrom(std::vector<GraphicsObject*>& list, GraphicsObject* object) {
    if (object == nullptr) {
        return;
    }
    if (!takeOut(list, object)) {
        std::cout << "GraphicsObject not exist!\n";
        return;
    }
    delete object;
}

/// Last entry first. A light or an emitter leaves its list by itself.
template <class T>
void deleteAll(std::vector<T*>& list) {
    while (!list.empty()) {
        const std::size_t size = list.size();
        delete list.back();
        if (list.size() == size) {
            list.pop_back();
        }
    }
}

template <class T>
void readSetting(const char* key, T& value) {
    try {
        value = getModifier<T>(key, moduleManager().settingsText);
    } catch (const std::string& message) {
        std::cout << message << '\n';
    }
}

InterfaceGraphicsObject* makeOverlay(float z) {
    auto* overlay =
        new InterfaceGraphicsObject(0.0F, 0.0F, logicalWidth, logicalHeight, "null.tga");
    overlay->setZ(z);
    overlay->setColour(0.0F, 0.0F, 0.0F, 1.0F);
    return overlay;
}

int toPixel(double value) {
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value)) {
        return Limits::min(); // nowhere, so surely not on the map
    }
    return static_cast<int>(std::clamp(value, double{Limits::min()}, double{Limits::max()}));
}

} // namespace

GraphicsModule::GraphicsModule() : lightMap(std::make_unique<LightMap>()) {
    readSettings();
    camera = new FreeCamera(0.0F, 0.0F, 1.0F);
    loadTextures();
    createOverlays();
    createEmitters();
    setUpDevice();
    platform::window().hideCursor();
}

GraphicsModule::~GraphicsModule() {
    delete dustEmiter;
    delete sparkEmiter;
    delete bloodEmiter;
    deleteAll(objects);
    deleteAll(lights);
    deleteAll(interfaceObjects);
    delete camera;
    delete cursor;
    delete screenFade;
    delete sceneFade;
}

void GraphicsModule::readSettings() {
    readSetting("DEBUG_DRAW", debugDraw);
    readSetting("BRIGHTNESS", brightness);
}

void GraphicsModule::loadTextures() {
    // The order of names fixes the handles, and with them the order of drawing.
    std::vector<std::string> names = listFiles(dataPrefix + "data/*.tga");
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        textureStore().load(name);
    }
}

void GraphicsModule::createOverlays() {
    cursor = new InterfaceGraphicsObject(0.0F, 0.0F, 10.0F, 10.0F, "particle7.tga");
    cursor->centreVertices();
    cursor->setColour(0.5F, 0.5F, 1.0F, 1.0F);
    cursor->setZ(cursorZ);
    screenFade = makeOverlay(screenFadeZ);
    sceneFade = makeOverlay(sceneFadeZ);
}

void GraphicsModule::setUpDevice() {
    Painter& paint = painter();
    paint.setUp(logicalWidth, logicalHeight);
    paint.setBlend(BlendMode::alpha);
    paint.setDepthTest(true);
    paint.setDepthFunction(DepthFunction::lessOrEqual);
    setViewport();
    paint.setScissor(0, 0, windowWidth, windowHeight);
    lightMap->setUp();
}

void GraphicsModule::addObject(GraphicsObject* object) {
    addUnique(objects, object);
}

void GraphicsModule::removeObject(GraphicsObject* object) {
    removeFrom(objects, object);
}

void GraphicsModule::addInterfaceObject(GraphicsObject* object) {
    addUnique(interfaceObjects, object);
}

void GraphicsModule::removeInterfaceObject(GraphicsObject* object) {
    removeFrom(interfaceObjects, object);
}

void GraphicsModule::addLight(LightAdd* light) {
    addUnique(lights, light);
}

void GraphicsModule::detachObject(GraphicsObject* object) {
    if (!takeOut(objects, object) && !takeOut(lights, object)) {
        std::cout << "GraphicsObject not exist!\n";
    }
}

void GraphicsModule::markDead(GraphicsObject* object) {
    deadObjects.insert(object);
}

void GraphicsModule::setViewport() {
    int width = 0;
    int height = 0;
    platform::window().getSize(width, height);
    if (width <= 0 || height <= 0) {
        return; // minimised: nothing is seen, and the last size stays fit to divide by
    }
    windowWidth = width;
    windowHeight = height;
    letterboxX = 0;
    letterboxY = 0;
    const float aspect = static_cast<float>(width) / static_cast<float>(height);
    if (windowMode == WindowMode::fullscreen || aspect == static_cast<float>(pictureAspect)) {
        painter().setViewport(0, 0, width, height);
    } else if (aspect < static_cast<float>(pictureAspect)) {
        const double pictureHeight = width / pictureAspect;
        letterboxY = static_cast<int>((height - pictureHeight) * 0.5);
        painter().setViewport(0, letterboxY, width, static_cast<int>(pictureHeight));
    } else {
        const double pictureWidth = height * pictureAspect;
        letterboxX = static_cast<int>((width - pictureWidth) * 0.5);
        painter().setViewport(letterboxX, 0, static_cast<int>(pictureWidth), height);
    }
}

void GraphicsModule::worldToLightMap(float x, float y, int& px, int& py) const {
    const double zoom = camera->divisorZoom();
    const double fromLeft = 640.0 / zoom - camera->getX() + x;
    const double fromBottom = 400.0 / zoom - camera->getY() + y;
    px = toPixel(zoom * fromLeft * lightMapSize / double{logicalWidth});
    py = toPixel(zoom * fromBottom * lightMapSize / double{logicalHeight});
}

GraphicsModule& graphicsModule() {
    return service<GraphicsModule>();
}
