#include "ChapterFlow.h"

#include "Intro.h"
#include "Levels.h"
#include "ProcessValues.h"
#include "Progress.h"
#include "ReturnToMenu.h"
#include "SaveGame.h"
#include "game/menu/MainMenu.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"

namespace {

constexpr auto lastLevelName = "LVL15"; // of an object in the level that has no way back

constexpr auto badEnding =
    "LOCK FADEALLTOBLACK DELAY 100 AMBIENT 0 FADENORMAL BADENDING1 TIP 332 DELAY 150 "
    "DELAYORKEY 20000 FADEALLTOBLACK DELAY 200 TIP 333 FADENORMAL DELAY 150 DELAYORKEY 20000 "
    "FADEALLTOBLACK DELAY 150 TIP -1 CREATEMENU FADENORMAL REMOVESCRIPT";

/// Runs in every step of a game.
void watchForDeath(SceneObject*, So_Addition*) {
    if (physicsRunning == 0 || levelRunning == 0 || sceneManager().player != nullptr) {
        return;
    }
    physicsModule().removeAllScripts(); // this one among them
    levelRunning = 0;
    countDeath();
    const bool isLast = sceneManager().getSceneObject(lastLevelName) != nullptr;
    runScript(isLast ? badEnding
                     : "LOCK FADEALLTOBLACK DELAY 100 LOADLASTSAVE FADENORMAL REMOVESCRIPT");
}

void clearForBadEnding() {
    sceneManager().clearScene();
    soundManager().fadeOutSounds();
    inputModule().removeAllFrames();
    levelRunning = 0;
}

/// The first chapter leaves no fade behind: its own end has gone to white.
void endFirstChapter() {
    levelRunning = 0;
    sceneManager().clearScene();
    graphicsModule().screenFadeTarget[3] = 0.0F;
    graphicsModule().sceneFadeTarget[3] = 0.0F;
    finishChapter(1);
    runScript("LOCK CHAPTER2INTRO REMOVESCRIPT");
}

/// What a map's last script calls. Behind the last chapter there is no other: the screen stays
/// black for a while, and then the menu comes.
void endChapter(int chapter) {
    levelRunning = 0;
    finishChapter(chapter);
    runScript("LOCK FADEALLTOBLACK DELAY 100 CHAPTER" + std::to_string(chapter + 1) +
              "INTRO REMOVESCRIPT");
    if (chapter == chapterCount) {
        runScript("LOCK DELAY 350 GAMEEND REMOVESCRIPT");
    }
}

void registerChapterEnds() {
    for (int chapter = 2; chapter <= chapterCount; ++chapter) {
        addCallback("CH" + std::to_string(chapter) + "END",
                    [chapter](SceneObject*, So_Addition*) { endChapter(chapter); });
    }
}

void registerOnce() {
    addCallback("CHECKINGFORPLAYERDEATH", watchForDeath);
    addSceneCommand("LOADLASTSAVE", loadLastSave);
    addSceneCommand("BADENDING1", clearForBadEnding);
    addSceneCommand("CREATEMENU", createMenu);
    addSceneCommand("CH1KO", endFirstChapter);
    addSceneCommand("GAMEEND", leaveForMenu);
    registerIntros();
    registerLevels();
    registerChapterEnds();
}

} // namespace

void runScript(const std::string& text) {
    physicsModule().addScript(parseScript(text));
}

void addSceneCommand(const std::string& name, std::function<void()> act) {
    addCallback(name, [name, act = std::move(act)](SceneObject* owner, So_Addition*) {
        owner != nullptr ? runScript("LOCK " + name + " REMOVESCRIPT") : act();
    });
}

void useCamera(Camera* camera) {
    delete graphicsModule().camera;
    graphicsModule().camera = camera;
}

void registerFlowCommands() {
    [[maybe_unused]] static const bool registered = (registerOnce(), true);
}
