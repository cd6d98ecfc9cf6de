#include "SaveGame.h"

#include "ChapterFlow.h"
#include "Files.h"
#include "Levels.h"
#include "ProcessValues.h"
#include "Progress.h"
#include "ReturnToMenu.h"
#include "StoryMonsters.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/HandsPause.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/Player.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

// Of the language table.
constexpr int loadFailureLine = 430;
constexpr int saveFailureLine = 431;

std::string pathOf(const std::string& name) {
    return userPrefix + "save/" + name;
}

void enterSave(const std::string& name) {
    const std::string path = pathOf(name);
    if (!sceneManager().preloadScene(path)) {
        throw std::string("bug with save :(");
    }
    SceneBundle bundle = sceneManager().parseStoredScene(path);
    levelRunning = 0; // until the character stands
    sceneManager().clearScene();
    sceneManager().addScene(std::move(bundle));
    forgetLevel();
    enterChapter(sceneManager().getSceneObject(playedMonsterName) != nullptr);
    if (sceneManager().player == nullptr) { // and would count as a death, again and again
        throw path + " - no saved game: there is nobody to play";
    }
}

void goOn() {
    const std::string name = latestSave();
    if (!name.empty()) {
        enterSave(name);
    } else if (!restartLevel()) {
        throw std::string("there is no saved game");
    }
    runScript("CHECKINGFORPLAYERDEATH");
    soundManager().fadeOutSounds();
    levelRunning = 1;
}

} // namespace

std::string saveName(const std::tm& time) {
    const auto number = [](int value) { return std::to_string(value); };
    return "save" + number(time.tm_year + 1900) + "-" + number(time.tm_mon + 1) + "-" +
           number(time.tm_mday) + "_" + number(time.tm_hour) + ";" + number(time.tm_min) + ";" +
           number(time.tm_sec) + ".vkl";
}

void saveGame() {
    if (sceneManager().player == nullptr) {
        return;
    }
    const std::time_t now = std::time(nullptr);
    try {
        saveGameAs(saveName(*std::localtime(&now)));
    } catch (const std::string& reason) {
        tellFailure(saveFailureLine, reason);
    }
}

void saveWithFlicker() {
    runScript("LOCK LOCKSIM FADEALLTOWHITE SOUND whisp.wav DELAY 25 FADENORMAL DELAY 25 "
              "FADEALLTOWHITE DELAY 25 FADENORMAL DELAY 25 FADEALLTOWHITE ISAVEGAME DELAY 25 "
              "FADENORMAL UNLOCKSIM DELAY 50 REMOVESCRIPT");
}

void saveGameAs(const std::string& name) {
    Player* player = sceneManager().player;
    player->physicsObject->body->setLinearVelocity({0.0F, 0.0F, 0.0F});
    const HandsPause pause(player);
    storeFile(packScene(), pathOf(name));
    sceneManager().forgetStoredScene(pathOf(name)); // two saves of a second have one name
    setLatestSave(name);
}

void loadLastSave() {
    try {
        goOn();
    } catch (const std::string& reason) {
        returnToMenu(loadFailureLine, reason);
    }
}

bool saveIsUsable() {
    const std::string name = latestSave();
    try {
        return !name.empty() && sceneManager().preloadScene(pathOf(name));
    } catch (const std::string&) {
        return false;
    }
}
