#include "SceneManager.h"

#include "Files.h"
#include "MapFile.h"
#include "NamedCommands.h"
#include "TextStream.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/GraphicsObjecte.h"
#include "physicsModule/PhysicsModule.h"

#include <algorithm>
#include <iostream>

namespace {

constexpr std::uint32_t debrisFadeAge = 240;   // steps until a piece begins to fade
constexpr std::uint32_t debrisRemoveAge = 340; // steps until it goes
constexpr float debrisFadeStep = 0.01F;        // alpha lost in a step

template <class T>
bool lists(const std::vector<T*>& list, const T* wanted) {
    return std::find(list.begin(), list.end(), wanted) != list.end();
}

/// The view stays where it was when the object that it follows goes.
void releaseCamera(const SceneObject* object) {
    Camera*& camera = graphicsModule().camera;
    if (camera->owner == object) {
        Camera* following = camera;
        camera = new FreeCamera(following->getX(), following->getY(), following->getZoom());
        delete following;
    }
}

void fade(GraphicsObject& graphics) {
    if (static_cast<GraphicsObjecte&>(graphics).getData().colours.empty()) {
        return; // a polygon without vertices has no colour to ask for
    }
    float red = 1.0F;
    float green = 1.0F;
    float blue = 1.0F;
    float alpha = 1.0F;
    graphics.getColour(red, green, blue, alpha);
    graphics.setColour(red, green, blue, alpha - debrisFadeStep);
}

void forgetName(const SceneObject& object) {
    if (object.findAddition(AdditionType::objectName) != nullptr) {
        NameIndex::forget();
    }
}

void registerCommandsOnce() {
    [[maybe_unused]] static const bool registered = (registerNamedCommands(), true);
}

} // namespace

SceneManager& sceneManager() {
    return service<SceneManager>();
}

SceneManager::SceneManager() {
    registerCommandsOnce();
}

SceneManager::~SceneManager() {
    clearScene();
    for (SceneObject* piece : debris) {
        releaseParts(piece);
        delete piece;
    }
    player = nullptr;
}

void SceneManager::addSceneObject(SceneObject* object) {
    if (lists(objects, object)) {
        std::cout << "jest juz taki obiekt SceneObject\n";
        return;
    }
    graphicsModule().addObject(object->graphicsObject);
    physicsModule().addPhysicsObject(object->physicsObject);
    objects.push_back(object);
    if (object->physicsObject != nullptr || !object->additions.empty()) {
        actors.push_back(object);
    }
    forgetName(*object);
}

void SceneManager::removeSceneObject(SceneObject* object) {
    const auto place = std::find(objects.begin(), objects.end(), object);
    if (place == objects.end()) {
        std::cout << "niema takiego obiektu SceneObject\n";
        return;
    }
    // A new object at the same address must not inherit the mark.
    std::replace(pendingRemovals.begin(), pendingRemovals.end(), object,
                 static_cast<SceneObject*>(nullptr));
    releaseCamera(object);
    releaseParts(object);
    objects.erase(place);
    std::erase(actors, object);
    forgetName(*object);
    delete object;
}

void SceneManager::releaseParts(SceneObject* object) {
    graphicsModule().removeObject(object->visibleGraphics());
    physicsModule().removePhysicsObject(object->physicsObject);
}

void SceneManager::clearScene() {
    while (!objects.empty()) {
        removeSceneObject(objects.front());
    }
}

void SceneManager::markForRemoval(SceneObject* object) {
    if (!lists(pendingRemovals, object)) {
        pendingRemovals.push_back(object);
    }
}

void SceneManager::flushRemovals() {
    for (std::size_t i = 0; i < pendingRemovals.size(); ++i) {
        removeSceneObject(pendingRemovals[i]);
    }
    pendingRemovals.clear();
}

void SceneManager::ageDebris() {
    std::erase_if(debris, [this](SceneObject* piece) {
        if (piece->age > debrisFadeAge) {
            fade(*piece->graphicsObject);
        }
        if (piece->age <= debrisRemoveAge) {
            return false;
        }
        releaseParts(piece);
        delete piece;
        return true;
    });
}

SceneObject* SceneManager::getSceneObject(const std::string& name) const {
    return names.find(name, objects);
}

bool SceneManager::contains(const SceneObject* object) const {
    return object != nullptr && (lists(objects, object) || lists(debris, object));
}

void SceneManager::addScene(SceneBundle bundle) {
    for (SceneObject* object : bundle.objects) {
        addSceneObject(object);
    }
    bundle.objects.clear();
    for (btTypedConstraint* joint : bundle.joints) {
        physicsModule().addConstraint(joint);
    }
    bundle.joints.clear();
}

void SceneManager::addDebris(SceneObject* piece) {
    graphicsModule().addObject(piece->graphicsObject);
    physicsModule().addPhysicsObject(piece->physicsObject);
    debris.push_back(piece);
}

void SceneManager::saveMap(const std::string& path) {
    writeFile(packScene(), path);
}

bool SceneManager::preloadScene(const std::string& path) {
    if (storedScenes.find(path) == storedScenes.end()) {
        storedScenes.emplace(path, readMapText(path));
    }
    return true;
}

SceneBundle SceneManager::parseStoredScene(const std::string& path) {
    const auto place = storedScenes.find(path);
    if (place == storedScenes.end()) {
        throw path + " - not among the stored scenes";
    }
    TextReader stream(place->second);
    return parseScene(stream, true);
}
