#include "SidePanels.h"

#include "Language.h"
#include "MenuPanel.h"

void openInformationPanel() {
    constexpr float width = 700.0F;
    constexpr float height = 600.0F;
    constexpr float wordsWidth = 750.0F;
    constexpr float line = lineHeight(menuSize::note);
    struct Row {
        int line;
        float below; ///< Lines from the top of the panel.
    };
    constexpr Row labels[] = {{169, 4.5F},  {171, 6.0F},  {172, 7.5F},  {173, 9.0F}, {175, 10.5F},
                              {181, 12.0F}, {256, 13.5F}, {260, 17.0F}, {257, 19.0F}};
    constexpr Row paragraphs[] = {{258, 17.0F}, {259, 19.0F}}; // each under its heading
    constexpr int titleLine = 6;

    auto panel = std::make_unique<MenuPanel>(width, height);
    panel->addLabel(text(titleLine), menuSize::row, 0.0F, height - lineHeight(menuSize::row));
    for (const Row& row : labels) {
        panel->addLabel(text(row.line), menuSize::note, 0.0F, height - row.below * line);
    }
    for (const Row& row : paragraphs) {
        panel->addParagraph(text(row.line), menuSize::note, wordsWidth, height - row.below * line);
    }
    openPanel(sidePanel, std::move(panel), 50.0F, 50.0F);
}
