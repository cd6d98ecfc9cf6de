#include "ChapterFlow.h"

#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Progress.h"
#include "Protagonist.h"
#include "game/commands/CommandTables.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LockedCamera.h"
#include "inputModule/GameInput.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <iostream>

namespace {

constexpr float levelZoom = 1.3F;
constexpr int fullHealth = 100;

std::string currentMap; // bare name of the map that was entered last

void watchForDeath(SceneObject*, So_Addition*) {
    if (physicsRunning == 0 || levelRunning == 0 || sceneManager().player != nullptr) {
        return;
    }
    physicsModule().removeAllScripts(); // this one among them
    levelRunning = 0;
    runScript("LOCK FADEALLTOBLACK DELAY 100 RELOADCHAPTER FADENORMAL REMOVESCRIPT");
}

void reloadChapter(SceneObject*, So_Addition*) {
    enterMapOrQuit(currentMap);
}

void followWithCamera(Player& player) {
    Camera*& camera = graphicsModule().camera;
    delete camera;
    camera = new LockedCamera(&player);
    camera->setZoom(levelZoom);
}

/// Every entry to a level begins alike, whatever was going on before.
void takeControl(Player& player) {
    movementLocked = 0;
    chapterFlags.fill(0);
    inputModule().removeAllFrames();

    PhysicsObject& physics = *player.physicsObject;
    physics.previousTransform = physics.body->getWorldTransform();
    physics.renderTransform = physics.previousTransform;
    PlayerStatistics statistics = player.statistics;
    statistics.health = fullHealth;
    player.setStatistics(statistics); // so that what a save lacks or exceeds is no wound
    sceneManager().player = &player;
    followWithCamera(player);
    levelRunning = 1;
}

} // namespace

/// What a map's last script calls: "CH2END" and so on.
static void addChapterEnd(int number) {
    addCallback("CH" + std::to_string(number) + "END", [number](SceneObject*, So_Addition*) {
        levelRunning = 0;
        finishChapter(number);
        runScript("LOCK FADEALLTOBLACK DELAY 100 CHAPTER" + std::to_string(number + 1) +
                  "INTRO REMOVESCRIPT");
    });
}

void runScript(const std::string& text) {
    physicsModule().addScript(parseScript(text));
}

void registerFlowCommands() {
    static bool registered = false;
    if (!registered) {
        registered = true;
        addCommands(std::array{
            NamedCommand{"CHECKINGFORPLAYERDEATH", watchForDeath},
            NamedCommand{"RELOADCHAPTER", reloadChapter},
        });
        for (int number = 2; number <= chapterCount; ++number) {
            addChapterEnd(number);
        }
    }
}

void enterMap(const std::string& fileName) {
    SceneBundle bundle = loadMapFile(dataPrefix + "maps/" + fileName, true);
    levelRunning = 0; // until the protagonist stands
    sceneManager().clearScene();
    sceneManager().addScene(std::move(bundle));
    currentMap = fileName;
    takeControl(placeProtagonist());
    runScript("CHECKINGFORPLAYERDEATH");
}

void enterMapOrQuit(const std::string& fileName) {
    try {
        enterMap(fileName);
    } catch (const std::string& error) {
        std::cout << error << '\n';
        moduleManager().running = false;
    }
}
