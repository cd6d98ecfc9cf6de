#include "GameStart.h"

#include "CentredText.h"
#include "ChapterFlow.h"
#include "GameEntry.h"
#include "Language.h"
#include "Levels.h"
#include "ModuleManager.h"
#include "Settings.h"
#include "game/commands/CommandTables.h"
#include "game/menu/MainMenu.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "inputModule/InputFrame.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "soundModule/SoundManager.h"

#include <array>
#include <iostream>
#include <string>

namespace {

constexpr int startScreenLine = 5; // of the language table
constexpr float startScreenSize = 2.0F;

InputFrame* startScreen = nullptr; // not owned; null when it has gone

void openStartScreen() {
    startScreen = openCentredText(text(startScreenLine), startScreenSize);
    const auto& words = startScreen->getChildren();
    if (words.size() > 1) {
        words.front()->graphics->setColour(1.0F, 0.0F, 0.0F, 1.0F);
    }
}

void fadeStartScreen(SceneObject*, So_Addition*) {
    graphicsModule().screenFadeTarget = {0.0F, 0.0F, 0.0F, 1.0F};
}

void leaveStartScreen(SceneObject*, So_Addition* link) {
    if (startScreen != nullptr) {
        inputModule().removeFrame(startScreen);
        startScreen = nullptr;
    }
    createMenu();
    graphicsModule().screenFadeTarget = {};
    graphicsModule().sceneFadeTarget = {};
    physicsModule().removeScript(link);
}

void registerStartScreen() {
    static bool registered = false;
    if (!registered) {
        registered = true;
        addCommands(std::array{
            NamedCommand{"INTRO", fadeStartScreen},
            NamedCommand{"INTRO1", leaveStartScreen},
        });
    }
}

void showStartScreen() {
    GraphicsModule& graphics = graphicsModule();
    for (InterfaceGraphicsObject* fade : {graphics.screenFade, graphics.sceneFade}) {
        fade->setColour(0.0F, 0.0F, 0.0F, 1.0F);
    }
    graphics.sceneFadeTarget = {0.0F, 0.0F, 0.0F, 1.0F};
    soundManager().playMusic("cambience1.ogg");
    openStartScreen();
    graphics.screenFadeTarget = {};
    runScript("DELAYORKEY 60000 INTRO DELAY 150 INTRO1");
}

/// The chapter that a level designer asks for in the settings; 0 for none.
int wantedChapter() {
    try {
        const auto chapter = getModifier<int>("START_CHAPTER", moduleManager().settingsText);
        return chapter >= 1 && chapter <= chapterCount ? chapter : 0;
    } catch (const std::string&) {
        return 0;
    }
}

} // namespace

void gameStart() {
    registerFlowCommands();
    registerStartScreen();
    const int chapter = wantedChapter();
    if (chapter == 0) {
        showStartScreen();
        return;
    }
    try {
        startInLevel(levelOf(chapter));
    } catch (const std::string& reason) {
        std::cout << reason << '\n';
        moduleManager().running = false;
    }
}
