#include "inputModule/GameMenu.h"

#include "Language.h"
#include "MenuPanel.h"
#include "ModuleManager.h"
#include "game/flow/ReturnToMenu.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Text.h"
#include "physicsModule/PhysicsModule.h"

namespace {

constexpr float width = 300.0F;
constexpr float height = 300.0F;
constexpr float titleGap = 14.0F;

void resume() {
    physicsModule().active = true;
    closePanel(sidePanel);
    graphicsModule().setSceneFade(0.0F, 0.0F, 0.0F, 0.0F);
}

void returnToMainMenu() {
    leaveForMenu();
    resume();
}

void quit() {
    moduleManager().running = false;
}

void openPauseMenu() {
    struct Row {
        int line;
        void (*action)();
    };
    constexpr int titleLine = 70;
    constexpr Row rows[] = {{71, resume}, {73, returnToMainMenu}, {74, quit}};

    auto panel = std::make_unique<MenuPanel>(width, height);
    const auto centre = [](Text& shown) {
        shown.moveBy((width - shown.getTextWidth()) / 2.0F, 0.0F);
    };
    float y = height - lineHeight(menuSize::title);
    centre(panel->addLabel(text(titleLine), menuSize::title, 0.0F, y));
    y -= titleGap;
    for (const Row& row : rows) {
        y -= lineHeight(menuSize::entry);
        centre(panel->addButton(text(row.line), menuSize::entry, 0.0F, y, row.action));
    }
    openPanel(sidePanel, std::move(panel), logicalWidth - width - 60.0F,
              (logicalHeight - height) / 2.0F);
}

} // namespace

void togglePauseMenu() {
    if (sidePanel != nullptr) {
        resume();
    } else if (graphicsModule().fadesFinished()) {
        physicsModule().active = false;
        graphicsModule().setSceneFade(0.0F, 0.0F, 0.0F, 0.5F);
        openPauseMenu();
    }
}
