#include "ReturnToMenu.h"

#include "ChapterFlow.h"
#include "Language.h"
#include "ProcessValues.h"
#include "game/menu/MainMenu.h"
#include "graphicsModule/GraphicsModule.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <iostream>

void tellFailure(int line, const std::string& reason) {
    std::cout << reason << '\n';
    inputModule().showTip(text(line) + " (" + reason + ")", 0.0F, 0.0F, false, false);
    runScript("LOCK DELAY 600 TIP -1 REMOVESCRIPT");
}

void leaveForMenu() {
    levelRunning = 0;
    sceneManager().clearScene();
    physicsModule().removeAllScripts();
    soundManager().fadeOutSounds();
    inputModule().removeAllFrames();
    runScript(
        "LOCK FADEALLTOBLACK DELAY 100 AMBIENT 0.2 TIP -1 CREATEMENU FADENORMAL REMOVESCRIPT");
}

void returnToMenu(int line, const std::string& reason) {
    levelRunning = 0;
    physicsRunning = 1;
    physicsModule().removeAllScripts();
    sceneManager().clearScene();
    inputModule().removeAllFrames();
    graphicsModule().screenFadeTarget[3] = 0.0F;
    graphicsModule().sceneFadeTarget[3] = 0.0F;
    createMenu();
    tellFailure(line, reason);
}
