#include "SidePanels.h"

#include "Language.h"
#include "MenuPanel.h"
#include "platform/WebPage.h"

namespace {

constexpr int newsLine = 54;
constexpr float width = 700.0F;
constexpr float height = 600.0F;
constexpr float wordsWidth = 750.0F;
constexpr float gap = 15.0F;

// The page of the game, as it is shown and as a browser takes it.
constexpr const char* pageName = "www.tolmere.example";
constexpr const char* pageAddress = "https://www.tolmere.example/";

} // namespace

void openNewsPanel() {
    auto panel = std::make_unique<MenuPanel>(width, height);
    const float top = height - gap;
    const float words = panel->addParagraph(text(newsLine), menuSize::row, wordsWidth, top);
    panel->addButton(pageName, menuSize::row, 0.0F, top - words - gap - lineHeight(menuSize::row),
                     [] { platform::openWebPage(pageAddress); });
    openPanel(sidePanel, std::move(panel), 50.0F, 50.0F);
}
