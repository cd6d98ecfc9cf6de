#include "support/EngineFixture.h"

#include "Language.h"
#include "ModuleManager.h"
#include "PhysicsBodies.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Progress.h"
#include "game/menu/MainMenu.h"
#include "game/menu/MenuPanel.h"
#include "game/menu/SidePanels.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/LightAdd.h"
#include "inputModule/GameInput.h"
#include "inputModule/GameMenu.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "soundModule/SoundManager.h"

#include <algorithm>

namespace {

/// The menu over an empty map. A line n of the language file says "line n".
class MenuTest : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        sceneManager().saveMap("maps/MENU.vkl");
        graphicsModule().screenFade->setColour(0, 0, 0, 0);
        graphicsModule().sceneFade->setColour(0, 0, 0, 0);
        gameStarted = true;
        createMenu();
    }
    void TearDown() override {
        gameStarted = false;
        movementLocked = 0;
        EngineFixture::TearDown();
        EXPECT_EQ(mainPanel, nullptr);
        EXPECT_EQ(sidePanel, nullptr);
    }

    /// The texts in a frame, with those in its own frames, from top to bottom as they were added.
    static std::vector<Text*> textsIn(const InputFrame* frame) {
        std::vector<Text*> texts;
        for (InputObject* child : frame->getChildren()) {
            if (auto* text = dynamic_cast<Text*>(child->graphics)) {
                texts.push_back(text);
            } else if (const auto* inner = dynamic_cast<const InputFrame*>(child)) {
                const std::vector<Text*> more = textsIn(inner);
                texts.insert(texts.end(), more.begin(), more.end());
            }
        }
        return texts;
    }
    static Text* find(const InputFrame* frame, const std::string& shown) {
        for (Text* text : textsIn(frame)) {
            if (text->getText() == shown) {
                return text;
            }
        }
        return nullptr;
    }
    static std::string colourOf(const InputFrame* frame, const std::string& shown) {
        const Text* text = find(frame, shown);
        if (text == nullptr) {
            return "absent";
        }
        Colour4 c{};
        text->getColour(c[0], c[1], c[2], c[3]);
        return c[0] == 1.0F                   ? "white"
               : c[0] == 0.5F && c[2] == 0.5F ? "grey"
               : c[2] == 1.0F                 ? "blue"
                                              : "lit";
    }
    /// Presses and releases the mouse over the text, as a user would.
    void click(const InputFrame* frame, const std::string& shown) {
        const Text* text = find(frame, shown);
        ASSERT_NE(text, nullptr) << shown;
        const float x = (text->getLeft() + text->getRight()) / 2;
        const float y = (text->getBottom() + text->getTop()) / 2;
        window->setMousePosition(static_cast<int>(x), static_cast<int>(800 - y));
        inputModule().mouseEvent(0, platform::pressed);
        inputModule().mouseEvent(0, platform::released);
    }
    static std::string setting(const char* key) {
        return getModifier<std::string>(key, moduleManager().settingsText);
    }
};

TEST_F(MenuTest, WithoutItsMapTheMenuEndsTheProgram) {
    sceneManager().clearScene();
    directory.write("maps/MENU.vkl", "no map");
    createMenu();
    EXPECT_FALSE(moduleManager().running);
}

TEST_F(MenuTest, ContinueIsOfferedOnlyForASaveThatCanBeRead) {
    EXPECT_NE(find(mainPanel, "line 1"), nullptr);
    sceneManager().saveMap("save/good.vkl");
    directory.write("save/bad.vkl", "xx");
    const struct {
        const char *name, *entry;
    } rows[] = {
        {"good.vkl", "line 21"}, {"bad.vkl", "line 1"}, {"none.vkl", "line 1"}, {"", "line 1"}};
    for (const auto& row : rows) {
        setLatestSave(row.name);
        rebuildMenus();
        EXPECT_NE(find(mainPanel, row.entry), nullptr) << row.name;
    }
}

TEST_F(MenuTest, TheScoresStandInTheCornersOfTheScreen) {
    writeSecrets(ChapterBits(0b101));
    countDeath();
    rebuildMenus();
    const Text* secrets = find(mainPanel, "line 320 2/15");
    ASSERT_NE(secrets, nullptr);
    EXPECT_NEAR(secrets->getLeft(), 0, 0.1);
    EXPECT_NEAR(secrets->getBottom(), 20, 0.1);
    EXPECT_NE(find(mainPanel, "line 383 1"), nullptr);
    EXPECT_EQ(find(mainPanel, "line 321"), nullptr);
    writeSecrets(ChapterBits().set());
    rebuildMenus();
    EXPECT_NE(find(mainPanel, "line 320 15/15"), nullptr);
    EXPECT_NE(find(mainPanel, "line 321"), nullptr);
}

TEST_F(MenuTest, AChapterOpensWhenTheOneBeforeItIsFinished) {
    finishChapter(1);
    finishChapter(4);
    writeSecrets(ChapterBits(0b10));
    click(mainPanel, "line 75");
    const struct {
        const char *title, *colour;
    } rows[] = {{"line 9", "white"},  {"line 76 (S)", "white"}, {"line 113", "grey"},
                {"line 103", "grey"}, {"line 147", "white"},    {"line 265", "grey"}};
    for (const auto& row : rows) {
        EXPECT_EQ(colourOf(sidePanel, row.title), row.colour) << row.title;
    }
    EXPECT_EQ(textsIn(sidePanel).size(), 15U);
    EXPECT_EQ(inputModule().getFrames().size(), 2U) << "one side panel takes the place of another";
}

TEST_F(MenuTest, AnOptionIsStoredAtOnceAndShownInBlue) {
    const struct {
        const char *choice, *key, *value;
    } rows[] = {
        {" 4", "MULTISAMPLE", "4"}, {"line 47  ", "FULLSCREEN", "1"}, {"  0", "MULTISAMPLE", "0"}};
    click(mainPanel, "line 2");
    EXPECT_EQ(colourOf(sidePanel, "line 50  "), "blue") << "the language";
    EXPECT_EQ(colourOf(sidePanel, "1280x800  "), "blue");
    for (const auto& row : rows) {
        click(sidePanel, row.choice);
        EXPECT_EQ(setting(row.key), row.value);
        EXPECT_EQ(colourOf(sidePanel, row.choice), "blue");
    }
    moduleManager().settingsText.clear();
    rebuildMenus();
    EXPECT_EQ(colourOf(sidePanel, " 4"), "white") << "a missing setting has no present value";
}

TEST_F(MenuTest, AResolutionIsTakenAtOnceAndSmallPoorAndDoubleOnesAreNotListed) {
    window->modes = {{1024, 768, 8, 8, 8},
                     {512, 900, 8, 8, 8},
                     {900, 512, 8, 8, 8},
                     {1600, 900, 5, 6, 5},
                     {1024, 768, 8, 8, 8}};
    openOptionsPanel();
    std::size_t listed = 0;
    for (const Text* text : textsIn(sidePanel)) {
        listed += text->getText().find('x') != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(listed, 1U);
    click(sidePanel, "1024x768  ");
    window->pollEvents();
    EXPECT_EQ(setting("WINDOW_WIDTH"), "1024");
    EXPECT_EQ(window->resizes, 1);
    EXPECT_EQ(colourOf(sidePanel, "1024x768  "), "blue");
}

TEST_F(MenuTest, ABindingEndsWithItsPanel) {
    click(mainPanel, "line 174");
    click(sidePanel, "line 390 W");
    EXPECT_NE(find(sidePanel, "line 391"), nullptr) << "waits for a key";
    inputModule().removeAllFrames(); // as the way into a game does
    inputModule().keyEvent('Q', platform::pressed);
    EXPECT_EQ(inputModule().keyUp, 'W');
}

TEST_F(MenuTest, EscapePausesThePlayOfACharacterOutsideOfFadesEvenOneThatIsLocked) {
    inputModule().removeAllFrames();
    const auto escape = [] { inputModule().keyEvent(platform::keyEscape, platform::pressed); };
    escape();
    EXPECT_EQ(sidePanel, nullptr);
    addPlayer(0, 0);
    movementLocked = 1;
    graphicsModule().screenFade->setColour(0, 0, 0, 0.01F);
    escape();
    EXPECT_EQ(sidePanel, nullptr);
    EXPECT_TRUE(physicsModule().active);
    graphicsModule().screenFade->setColour(0, 0, 0, 0);
    escape();
    ASSERT_NE(sidePanel, nullptr);
    EXPECT_FALSE(physicsModule().active);
    EXPECT_EQ(alphaOf(*graphicsModule().sceneFade), 0.5F);
    escape();
    EXPECT_EQ(sidePanel, nullptr);
    EXPECT_TRUE(physicsModule().active);
    EXPECT_TRUE(graphicsModule().fadesFinished());
}

// Somebody may leave the menu open and go for a walk.
TEST_F(MenuTest, TheSceneBehindThePanelsMovesAndStaysCalm) {
    dataPrefix = TOLMERE_GAME_DIRECTORY "/";
    sceneManager().clearScene();
    createMenu();
    const auto place = [](const char* name) {
        return originOf(*sceneManager().getSceneObject(name));
    };
    float left = 1e9F;
    float right = -1e9F;
    for (int i = 0; i < 3600; ++i) {
        step();
        left = std::min(left, place("PENDULUM").x());
        right = std::max(right, place("PENDULUM").x());
        for (const SceneObject* object : sceneManager().objects) {
            if (i > 600 && object->physicsObject != nullptr) {
                ASSERT_LT(object->physicsObject->body->getLinearVelocity().length(), 60.0F) << i;
            }
        }
    }
    EXPECT_GT(right - left, 5.0F) << "the lamp swings";
    EXPECT_LT(right - left, 80.0F);
    for (const char* name : {"floating crate", "floating barrel"}) {
        EXPECT_NEAR(place(name).y(), -340.0F, 25.0F) << name;
        EXPECT_NEAR(place(name).x(), -220.0F, 420.0F) << name;
    }
}

TEST_F(MenuTest, NoPanelStandsOutOfTheScreenOrHasAnEmptyRowInEitherLanguage) {
    for (const char* name : {"lang_eng.txt", "lang_pol.txt"}) {
        dataPrefix = TOLMERE_GAME_DIRECTORY "/";
        setModifier<std::string>("LANGUAGE_FILE", name, moduleManager().settingsText);
        loadLanguage();
        dataPrefix.clear();
        rebuildMenus();
        for (const auto open :
             {openNewsPanel, openChapterPanel, openOptionsPanel, openControlsPanel,
              openInformationPanel, togglePauseMenu, togglePauseMenu}) {
            open();
            for (const InputFrame* panel : inputModule().getFrames()) {
                for (const Text* text : textsIn(panel)) {
                    SCOPED_TRACE(text->getText());
                    EXPECT_NE(text->getText().find_first_not_of(' '), std::string::npos);
                    EXPECT_GE(text->getLeft(), 0.0F);
                    EXPECT_LE(text->getRight(), logicalWidth);
                    EXPECT_GE(text->getBottom(), 0.0F);
                    EXPECT_LE(text->getTop(), logicalHeight);
                }
            }
        }
    }
}

} // namespace
