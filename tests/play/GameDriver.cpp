#include "GameDriver.h"

#include "support/ScriptedWindow.h"

#include "GameStart.h"
#include "ProcessValues.h"
#include "TextStream.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Levels.h"
#include "game/flow/SaveGame.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/GraphicsObject.h"
#include "graphicsModule/Painter.h"
#include "graphicsModule/Text.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/Hands.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/Player.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>
#include <GL/gl.h>

#include <fstream>
#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace {

constexpr int drawEvery = 20; // steps; software drawing is the dearest part of a play test

/// The level of a chapter, or one that begins at its marker.
Level levelOn(const std::string& map) {
    for (int chapter = 1; chapter <= chapterCount; ++chapter) {
        if (levelOf(chapter).map == map) {
            return levelOf(chapter);
        }
    }
    return {map};
}

const Text* findText(const std::string& shown) {
    for (const GraphicsObject* object : graphicsModule().getInterfaceObjects()) {
        const auto* text = dynamic_cast<const Text*>(object);
        if (text != nullptr && text->getText() == shown) {
            return text;
        }
    }
    return nullptr;
}

} // namespace

GameDriver::GameDriver(ScriptedWindow& scripted) : window(scripted) {
    window.moveMouse(windowWidth / 2, windowHeight / 2);
    gameStart();
}

GameDriver::GameDriver(ScriptedWindow& scripted, const std::string& map) : window(scripted) {
    window.moveMouse(windowWidth / 2, windowHeight / 2);
    registerFlowCommands();
    startInLevel(levelOn(map));
}

void GameDriver::step() {
    if (aiming) {
        pointMouse();
    }
    inputModule().update();
    if (physicsModule().active) {
        physicsModule().update();
    }
    soundManager().tick();
    if (++steps % drawEvery == 0) {
        draw();
    } else {
        graphicsModule().camera->update(); // follows as if a frame were drawn
    }
    if (!pictureDirectory.empty() && steps % pictureSteps == 0) {
        screenshot(pictureDirectory + "/step" + std::to_string(steps) + ".ppm");
    }
    if (afterStep) {
        afterStep(*this);
    }
}

void GameDriver::draw() {
    physicsModule().accumulator = physicsModule().period;
    graphicsModule().update();
}

void GameDriver::keepPictures(const std::string& directory, int everySteps) {
    pictureDirectory = directory;
    pictureSteps = everySteps;
}

void GameDriver::hold(const std::string& key, bool down) {
    static const std::map<std::string, int> keys{{"left", 'A'},
                                                 {"right", 'D'},
                                                 {"up", 'W'},
                                                 {"down", 'S'},
                                                 {"shift", platform::keyLeftShift},
                                                 {"escape", platform::keyEscape}};
    if (key == "mouse" || key == "mouse2") {
        const int button = key == "mouse" ? platform::leftMouseButton : platform::rightMouseButton;
        down ? window.pressMouse(button) : window.releaseMouse(button);
        if (down) {
            heldButtons.insert(button);
        } else {
            heldButtons.erase(button);
        }
        return;
    }
    const auto found = keys.find(key);
    if (found == keys.end()) {
        throw "no such key: " + key;
    }
    down ? window.press(found->second) : window.release(found->second);
    if (down) {
        heldKeys.insert(found->second);
    } else {
        heldKeys.erase(found->second);
    }
}

void GameDriver::aim(float x, float y) {
    aiming = true;
    aimTarget.clear();
    aimX = x;
    aimY = y;
}

void GameDriver::aimAt(const std::string& name) {
    aiming = true;
    aimTarget = name;
}

SceneObject* GameDriver::held() const {
    EqItem* item = player() == nullptr ? nullptr : player()->equipment->current;
    const bool hands = item != nullptr && item->getType() == itemType::hands;
    return hands ? static_cast<Hands*>(item)->heldObject() : nullptr;
}

void GameDriver::pointMouse() {
    if (player() == nullptr) {
        return;
    }
    const Camera& camera = *graphicsModule().camera;
    const btVector3 place = placeOf(*player());
    const SceneObject* target =
        aimTarget.empty() ? nullptr : sceneManager().getSceneObject(aimTarget);
    if (target != nullptr) {
        const btVector3 way = placeOf(*target) - place;
        aimX = way.x();
        aimY = way.y();
    }
    const float zoom = camera.getZoom();
    const float logicalX = (place.x() + aimX - camera.getX()) * zoom + logicalWidth / 2.0F;
    const float logicalY = (place.y() + aimY - camera.getY()) * zoom + logicalHeight / 2.0F;
    moveMouse(logicalX, logicalY);
}

void GameDriver::moveMouse(float x, float y) {
    const float scale =
        static_cast<float>(windowWidth - 2 * letterboxX) / logicalWidth; // the same on both axes
    window.moveMouse(letterboxX + static_cast<int>(x * scale),
                     letterboxY + static_cast<int>((logicalHeight - y) * scale));
}

void GameDriver::letGo() {
    aiming = false;
    for (const int key : std::exchange(heldKeys, {})) {
        window.release(key);
    }
    for (const int button : std::exchange(heldButtons, {})) {
        window.releaseMouse(button);
    }
    step();
}

void GameDriver::click(const std::string& shown) {
    const Text* text = findText(shown);
    if (text == nullptr) {
        throw "nothing on the screen reads " + shown;
    }
    aiming = false;
    moveMouse((text->getLeft() + text->getRight()) / 2.0F,
              (text->getBottom() + text->getTop()) / 2.0F);
    step();
    hold("mouse", true);
    step();
    hold("mouse", false);
    step();
}

bool GameDriver::shows(const std::string& shown) {
    return findText(shown) != nullptr;
}

void GameDriver::reload() {
    saveGameAs("reload" + std::to_string(++reloads) + ".vkl");
    loadLatest();
}

void GameDriver::loadLatest() {
    loadLastSave();
    for (const int key : heldKeys) { // a new character knows of no key that was down before it
        window.press(key);
    }
    for (const int button : heldButtons) {
        window.pressMouse(button);
    }
}

Player* GameDriver::player() const {
    return sceneManager().player;
}

btVector3 GameDriver::placeOf(const SceneObject& object) {
    if (object.physicsObject != nullptr) {
        return object.physicsObject->body->getWorldTransform().getOrigin();
    }
    return object.graphicsObject->getTransformRef().getOrigin();
}

std::string GameDriver::describePlace() const {
    if (player() == nullptr) {
        return "the character is dead after step " + std::to_string(steps);
    }
    const btVector3 place = placeOf(*player());
    return "the character is at " + std::to_string(static_cast<int>(place.x())) + ", " +
           std::to_string(static_cast<int>(place.y())) + " after step " + std::to_string(steps);
}

std::size_t GameDriver::sceneHash() {
    TextWriter writer;
    writeScene(writer);
    return std::hash<std::string>{}(writer.text());
}

void GameDriver::screenshot(const std::string& path) {
    draw();
    painter().flush();
    const auto width = static_cast<std::size_t>(windowWidth);
    const auto height = static_cast<std::size_t>(windowHeight);
    std::vector<char> pixels(width * height * 3);
    // The window of a play test does not swap, so the frame is still in the back buffer.
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, windowWidth, windowHeight, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    std::ofstream file(path, std::ios::binary);
    file << "P6\n" << width << ' ' << height << "\n255\n";
    for (std::size_t row = height; row-- > 0;) {
        file.write(pixels.data() + static_cast<std::ptrdiff_t>(row * width * 3),
                   static_cast<std::streamsize>(width * 3));
    }
}
