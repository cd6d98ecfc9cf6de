#include "SidePanels.h"

#include "Language.h"
#include "MainMenu.h"
#include "MenuPanel.h"
#include "ModuleManager.h"
#include "Settings.h"
#include "graphicsModule/Text.h"
#include "inputModule/Display.h"
#include "inputModule/LambdaButton.h"
#include "inputModule/SliderGraphics.h"
#include "inputModule/SliderSetButton.h"
#include "platform/Window.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr float width = 700.0F;
constexpr float height = 600.0F;
constexpr float line = lineHeight(menuSize::row);
constexpr float choiceColumn = 290.0F;

constexpr int brightnessLine = 213;
constexpr int brightnessNoteLine = 214;
constexpr int resolutionLine = 7;
constexpr int resolutionNoteLine = 8;
constexpr int yesLine = 47;
constexpr int noLine = 48;

/// One value of a setting, as it is shown and as it is stored.
struct Choice {
    std::string shown;
    std::string value;
};

struct OptionRow {
    std::string label;
    const char* setting;
    float below; ///< Lines from the top of the panel.
    std::vector<Choice> choices;
    void (*takeEffect)() = nullptr; ///< At once; the others wait for the next start.
};

/// The words of a choice keep their distance by the blanks behind them.
std::string spaced(const std::string& words) {
    return words + "  ";
}

std::vector<OptionRow> optionRows() {
    const std::vector<Choice> yesOrNo{{spaced(text(yesLine)), "1"}, {spaced(text(noLine)), "0"}};
    return {{text(49),
             "LANGUAGE_FILE",
             3.0F,
             {{spaced(text(50)), "lang_eng.txt"}, {spaced(text(51)), "lang_pol.txt"}},
             loadLanguage},
            {text(52), "FULLSCREEN", 5.0F, yesOrNo},
            {"Multisampling:", "MULTISAMPLE", 6.0F, {{"  0", "0"}, {" 2", "2"}, {" 4", "4"}}},
            {"V-sync", "V_SYNC", 7.0F, yesOrNo}};
}

/// Nothing for a setting that is missing.
std::string readSetting(const char* key) {
    try {
        return getModifier<std::string>(key, moduleManager().settingsText);
    } catch (const std::string&) {
        return {};
    }
}

void store(const char* key, const std::string& value) {
    setModifier(key, value, moduleManager().settingsText);
}

void choose(const char* setting, const std::string& value, void (*takeEffect)()) {
    store(setting, value);
    if (takeEffect != nullptr) {
        takeEffect();
    }
    rebuildMenus();
    moduleManager().saveSettings();
}

MenuColour colourOf(bool present) {
    return present ? MenuColour::blue : MenuColour::white;
}

/// How far the first letter that can be seen stands to the right of the text's own place.
float indentOf(const Text& shown) {
    const std::size_t first = shown.getText().find_first_not_of(' ');
    return first == std::string::npos ? 0.0F : shown.getChildren()[first]->getLeft();
}

void addOptionRow(MenuPanel& panel, const OptionRow& row) {
    const float y = height - row.below * line;
    const std::string present = readSetting(row.setting);
    panel.addLabel(row.label, menuSize::row, 0.0F, y);
    float x = 0.0F;
    for (const Choice& choice : row.choices) {
        Text& shown = panel.addButton(
            choice.shown, menuSize::row, 0.0F, y,
            [setting = row.setting, value = choice.value, takeEffect = row.takeEffect] {
                choose(setting, value, takeEffect);
            },
            colourOf(choice.value == present));
        if (&choice == &row.choices.front()) {
            x = choiceColumn - indentOf(shown);
        }
        shown.moveBy(x, 0.0F);
        x += shown.getTextWidth();
    }
}

void addBrightness(MenuPanel& panel) {
    constexpr float displayGap = 16.0F;
    constexpr float sliderGap = 112.0F;
    constexpr float darkest = 1.0F;
    constexpr float brightest = 1.9F;
    const float y = height - line;
    const Text& label = panel.addLabel(text(brightnessLine), menuSize::row, 0.0F, y);
    const float end = label.getTextWidth();
    panel.addChild(end + displayGap, y, new Display<float>(menuSize::row));
    panel.addChild(end + sliderGap, y,
                   new SliderSetButton<float>(makeSliderGraphics(0.0F, 0.0F, 100.0F, 25.0F),
                                              darkest, brightest));
    panel.addLabel(text(brightnessNoteLine), menuSize::note, 0.0F, height - 2.0F * line + 10.0F);
}

void setResolution(int wide, int high) {
    store("WINDOW_WIDTH", std::to_string(wide));
    store("WINDOW_HEIGHT", std::to_string(high));
    moduleManager().saveSettings();
    platform::window().setSize(wide, high);
    rebuildMenus();
}

/// Modes that a level can be seen in. The same size at several refresh rates is one choice.
std::vector<platform::VideoMode> offeredModes() {
    constexpr int smallest = 512; // a side must be longer
    std::vector<platform::VideoMode> modes;
    for (const platform::VideoMode& mode : platform::window().videoModes()) {
        const bool trueColour = mode.redBits == 8 || mode.greenBits == 8 || mode.blueBits == 8;
        const auto same = [&mode](const platform::VideoMode& other) {
            return other.width == mode.width && other.height == mode.height;
        };
        if (trueColour && mode.width > smallest && mode.height > smallest &&
            std::none_of(modes.begin(), modes.end(), same)) {
            modes.push_back(mode);
        }
    }
    return modes;
}

/// Returns the height above the panel's bottom at which the rows of resolutions end.
float addResolutions(MenuPanel& panel) {
    const float top = height - 9.0F * line;
    panel.addLabel(text(resolutionLine), menuSize::row, 0.0F, top);
    std::vector<InputObject*> entries;
    for (const platform::VideoMode& mode : offeredModes()) {
        const std::string wide = std::to_string(mode.width);
        const std::string high = std::to_string(mode.height);
        const bool present =
            wide == readSetting("WINDOW_WIDTH") && high == readSetting("WINDOW_HEIGHT");
        auto* face =
            new Text(spaced(wide + "x" + high), 0.0F, 0.0F, menuSize::row, 1.0F, 1.0F, 1.0F);
        if (present) {
            face->setColour(0.0F, 0.0F, 1.0F, 1.0F);
        }
        entries.push_back(
            new LambdaButton(face, [mode] { setResolution(mode.width, mode.height); }));
    }
    InputFrame* rows = layoutRows(entries, width, 0.0F);
    rows->graphics->setColour(0.0F, 0.0F, 0.0F, 0.0F);
    const float bottom = top - rows->graphics->getHeight();
    panel.addSubFrame(0.0F, bottom, rows);
    return bottom;
}

} // namespace

void openOptionsPanel() {
    auto panel = std::make_unique<MenuPanel>(width, height);
    addBrightness(*panel);
    for (const OptionRow& row : optionRows()) {
        addOptionRow(*panel, row);
    }
    const float end = addResolutions(*panel);
    panel->addLabel(text(resolutionNoteLine), menuSize::note, 0.0F,
                    end - lineHeight(menuSize::note));
    openPanel(sidePanel, std::move(panel), 50.0F, 33.0F);
}
