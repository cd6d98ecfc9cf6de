#include "MainMenu.h"

#include "Language.h"
#include "Logo.h"
#include "MenuPanel.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "SidePanels.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Progress.h"
#include "game/flow/SaveGame.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Text.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <iostream>
#include <string>

namespace {

constexpr float width = 400.0F;
constexpr float height = 300.0F;
constexpr float left = logicalWidth - width - 30.0F;
constexpr float bottom = (logicalHeight - height) / 2.0F;

constexpr int newGameLine = 1;
constexpr int continueLine = 21;
constexpr int secretsLine = 320;
constexpr int allSecretsLine = 321;
constexpr int deathsLine = 383;

void quit() {
    moduleManager().running = false;
}

void addEntries(MenuPanel& panel) {
    struct Entry {
        int line;
        void (*action)();
    };
    const bool saved = saveIsUsable();
    const Entry entries[] = {
        {saved ? continueLine : newGameLine, saved ? continueGame : startNewGame},
        {75, openChapterPanel},
        {2, openOptionsPanel},
        {174, openControlsPanel},
        {3, openInformationPanel},
        {4, quit}};
    float y = height;
    for (const Entry& entry : entries) {
        y -= lineHeight(menuSize::entry);
        Text& shown = panel.addButton(text(entry.line), menuSize::entry, 0.0F, y, entry.action);
        shown.moveBy((width - shown.getTextWidth()) / 2.0F, 0.0F);
    }
}

/// The small print along the lower edge of the screen. Its places are those on the screen, which
/// the children of a panel reach when the panel is opened at its own.
void addScores(MenuPanel& panel) {
    const auto add = [&panel](const std::string& shown, float x, float y) {
        return x + panel.addLabel(shown, menuSize::note, x - left, y - bottom).getTextWidth();
    };
    const std::size_t secrets = readSecrets().count();
    const std::string total = "/" + std::to_string(chapterCount);
    const float end = add(text(secretsLine) + " " + std::to_string(secrets) + total, 0.0F, 20.0F);
    if (secrets == chapterCount) {
        add(text(allSecretsLine), end, 20.0F);
    }
    add(text(deathsLine) + " " + std::to_string(readDeaths()), 0.0F, 40.0F);
    add("v10", 1220.0F, 20.0F);
}

void openMainPanel() {
    closePanel(mainPanel);
    auto panel = std::make_unique<MenuPanel>(width, height);
    addEntries(*panel);
    addScores(*panel);
    openPanel(mainPanel, std::move(panel), left, bottom);
    openNewsPanel();
}

void addMenuScene() {
    try {
        sceneManager().addScene(loadMapFile(dataPrefix + "maps/MENU.vkl", false));
    } catch (const std::string& reason) {
        std::cout << reason << '\n';
        moduleManager().running = false;
    }
}

} // namespace

void createMenu() {
    gameStarted = false;
    addMenuScene();
    Camera*& camera = graphicsModule().camera;
    delete camera;
    camera = new FreeCamera(0.0F, 0.0F, 1.0F);
    graphicsModule().ambientTarget = {};
    soundManager().playMusic("cambience1.ogg");
    addLogo();
    openMainPanel();
}

void rebuildMenus() {
    openMainPanel();
    if (sidePanel != nullptr) {
        openOptionsPanel();
    }
}
