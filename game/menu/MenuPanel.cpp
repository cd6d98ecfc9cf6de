#include "MenuPanel.h"

#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/Text.h"
#include "inputModule/InputModule.h"
#include "inputModule/LambdaButton.h"

#include <array>
#include <utility>

namespace {

constexpr int noTexture = -1;

using Rgb = std::array<float, 3>;

Rgb toRgb(MenuColour colour) {
    switch (colour) {
    case MenuColour::grey:
        return {0.5F, 0.5F, 0.5F};
    case MenuColour::blue: // a button without red neither lights up nor changes
        return {0.0F, 0.0F, 1.0F};
    case MenuColour::white:
        break;
    }
    return {1.0F, 1.0F, 1.0F};
}

Text* makeText(const std::string& shown, float size, MenuColour colour) {
    const Rgb rgb = toRgb(colour);
    return new Text(shown, 0.0F, 0.0F, size, rgb[0], rgb[1], rgb[2]);
}

void hide(const InputFrame& frame) {
    frame.graphics->setColour(0.0F, 0.0F, 0.0F, 0.0F);
}

} // namespace

MenuPanel::MenuPanel(float width, float height)
    : InputFrame(new InterfaceGraphicsObject(0.0F, 0.0F, width, height, noTexture)) {
    hide(*this);
}

MenuPanel::~MenuPanel() {
    for (MenuPanel** record : {&mainPanel, &sidePanel}) {
        if (*record == this) {
            *record = nullptr;
        }
    }
}

Text& MenuPanel::addLabel(const std::string& shown, float size, float x, float y,
                          MenuColour colour) {
    Text* label = makeText(shown, size, colour);
    addChild(x, y, new InputObject(label));
    return *label;
}

Text& MenuPanel::addButton(const std::string& shown, float size, float x, float y,
                           std::function<void()> action, MenuColour colour) {
    Text* face = makeText(shown, size, colour);
    addChild(x, y, new LambdaButton(face, std::move(action)));
    return *face;
}

float MenuPanel::addParagraph(const std::string& shown, float size, float maxWidth, float top) {
    InputFrame* words = makeTextFrame(shown, maxWidth, 0.0F, size, 1.0F, 1.0F, 1.0F);
    hide(*words);
    const float height = words->graphics->getHeight();
    addSubFrame(0.0F, top - height, words);
    return height;
}

void closePanel(MenuPanel*& record) {
    if (record != nullptr) {
        inputModule().removeFrame(record);
    }
}

void openPanel(MenuPanel*& record, std::unique_ptr<MenuPanel> panel, float x, float y) {
    closePanel(record);
    record = panel.release();
    inputModule().addFrame(record, x, y);
}
