#include "SidePanels.h"

#include "Language.h"
#include "MenuPanel.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/Text.h"
#include "inputModule/InputModule.h"

namespace {

constexpr float side = 700.0F;
constexpr float keyColumn = 200.0F;

constexpr int titleLine = 384;
constexpr int keyLine = 390;
constexpr int pressKeyLine = 391;

struct KeyRow {
    int line;
    char InputModule::*key;
    int binding; ///< Value of `rebinding`.
    float below; ///< Lines from the top of the panel.
};
constexpr KeyRow keyRows[] = {{386, &InputModule::keyUp, 1, 2.5F},
                              {387, &InputModule::keyDown, 2, 4.0F},
                              {388, &InputModule::keyLeft, 3, 5.5F},
                              {389, &InputModule::keyRight, 4, 7.0F}};

struct NoteRow {
    int line;
    float below;
};
constexpr NoteRow noteRows[] = {{395, 8.5F}, {396, 10.0F}, {385, 11.5F}};

/// Height of a row above the bottom of the panel.
constexpr float rowAt(float below) {
    return side - below * lineHeight(menuSize::row);
}

/// A button that waits for the key that it is to show from then on.
void addKeyButton(MenuPanel& panel, const KeyRow& row) {
    auto face = std::make_shared<Text*>(nullptr); // known only when the button is made
    const std::string shown = text(keyLine) + " " + inputModule().*row.key;
    *face = &panel.addButton(shown, menuSize::row, keyColumn, rowAt(row.below),
                             [face, binding = row.binding] {
                                 inputModule().rebinding = binding;
                                 inputModule().rebindLabel = *face;
                                 (*face)->setText(text(pressKeyLine));
                             });
}

void addPadPicture(MenuPanel& panel) {
    auto* picture = new InterfaceGraphicsObject(0.0F, 0.0F, 600.0F, 350.0F, "padmap.tga");
    panel.addSubFrame(0.0F, 0.0F, new InputFrame(picture));
}

} // namespace

void openControlsPanel() {
    auto panel = std::make_unique<MenuPanel>(side, side);
    panel->addLabel(text(titleLine), menuSize::row, 0.0F, rowAt(1.0F));
    for (const KeyRow& row : keyRows) {
        panel->addLabel(text(row.line), menuSize::row, 0.0F, rowAt(row.below));
        addKeyButton(*panel, row);
    }
    for (const NoteRow& row : noteRows) {
        panel->addLabel(text(row.line), menuSize::row, 0.0F, rowAt(row.below));
    }
    addPadPicture(*panel);
    openPanel(sidePanel, std::move(panel), 50.0F, 50.0F);
}
