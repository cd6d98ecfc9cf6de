#include "SidePanels.h"

#include "Language.h"
#include "MenuPanel.h"
#include "game/flow/ChapterTable.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Progress.h"

void openChapterPanel() {
    constexpr float side = 600.0F;
    auto panel = std::make_unique<MenuPanel>(side, side);
    const ChapterBits finished = readProgress();
    const ChapterBits secrets = readSecrets();
    float y = side;
    for (int chapter = 1; chapter <= chapterCount; ++chapter) {
        const auto bit = static_cast<std::size_t>(chapter) - 1;
        const std::string title = text(chapterRow(chapter).title);
        y -= lineHeight(menuSize::row);
        if (chapter > 1 && !finished[bit - 1]) {
            panel->addLabel(title, menuSize::row, 0.0F, y, MenuColour::grey);
        } else {
            panel->addButton(secrets[bit] ? title + " (S)" : title, menuSize::row, 0.0F, y,
                             [chapter] { startChapter(chapter); });
        }
    }
    openPanel(sidePanel, std::move(panel), 100.0F, 50.0F);
}
