#include "PlayFixture.h"
#include "Walkthrough.h"

#include "Language.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/ChapterTable.h"
#include "game/flow/Progress.h"
#include "graphicsModule/GraphicsModule.h"
#include "inputModule/GameInput.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"

#include <filesystem>
#include <optional>

// The whole game in one sitting, or almost: from the start screen by way of the menu through all
// chapters to both of its ends.

#if TOLMERE_ALL_CHAPTERS

namespace {

namespace fs = std::filesystem;

// Lines of the language table, on what is clicked.
namespace line {
constexpr int newGame = 1, options = 2, quit = 74, resume = 71, toMainMenu = 73, chapters = 75;
constexpr int continueGame = 21, polish = 51, allSecrets = 321;
} // namespace line

class LongPlay : public PlayFixture {
protected:
    /// Who comes back finds everything as it was left.
    void prepareDirectory() override {
        if (!fs::exists("config.txt")) {
            PlayFixture::prepareDirectory();
            fs::copy_file(TOLMERE_GAME_DIRECTORY "/lang_pol.txt", "lang_pol.txt");
        }
    }

    /// From the start screen to the menu.
    void sitDown() {
        game.emplace(*window);
        waitUntil([] { return graphicsModule().screenFadeTarget[3] == 0.0F; }, "the start screen");
        press("mouse");
        waitForMenu();
    }

    template <class Test>
    void waitUntil(Test test, const std::string& what, int longest = 1500) {
        for (int i = 0; i < longest; ++i) {
            if (test()) {
                return;
            }
            game->step();
        }
        throw "waited in vain for " + what;
    }
    void waitForMenu() {
        waitUntil([] { return GameDriver::shows(text(line::chapters)) && !gameStarted; },
                  "the menu");
        waitUntil([] { return graphicsModule().fadesFinished(); }, "the menu's light");
    }
    void waitForLevel(const std::string& name) {
        constexpr int longestIntro = 9000; // steps
        waitUntil(
            [] {
                return levelRunning != 0 && sceneManager().player != nullptr &&
                       movementLocked == 0 && physicsRunning != 0;
            },
            name, longestIntro);
        game->letGo();
    }
    void press(const std::string& key) {
        game->hold(key, true);
        game->step();
        game->step();
        game->hold(key, false);
        game->step();
    }
    void clickLine(int number) { game->click(text(number)); }
    void pause() {
        waitUntil([] { return graphicsModule().fadesFinished(); }, "clear sight");
        press("escape");
    }

    void walk(const std::string& walkthrough) {
        Walkthrough(pathOf(walkthrough)).play(*game);
        game->letGo();
    }

    // What happens between the chapters.
    void die() {
        const int deaths = readDeaths();
        sceneManager().player->hurt(1000);
        waitUntil([] { return sceneManager().player == nullptr; }, "the end of the character");
        waitForLevel("the life after");
        EXPECT_EQ(readDeaths(), deaths + 1);
    }
    void pauseAndGoOn() {
        pause();
        const auto then = physicsModule().stepCount;
        for (int i = 0; i < 60; ++i) {
            game->step();
        }
        EXPECT_EQ(physicsModule().stepCount, then);
        clickLine(line::resume);
    }
    void changeLanguage() {
        pause();
        clickLine(line::toMainMenu);
        waitForMenu();
        const std::string before = text(line::continueGame);
        clickLine(line::options);
        game->click(text(line::polish) + "  ");
        EXPECT_NE(text(line::continueGame), before);
        clickLine(line::continueGame);
    }
    void quitAndComeBack() {
        pause();
        clickLine(line::quit);
        EXPECT_FALSE(moduleManager().running);
        game.reset();
        PlayFixture::TearDown();
        PlayFixture::SetUp();
        sitDown();
        clickLine(line::continueGame);
    }
    void interlude(int chapter) {
        switch (chapter) {
        case 3:
            return die();
        case 4:
            return pauseAndGoOn();
        case 5:
            return changeLanguage();
        case 6:
            return quitAndComeBack();
        case 7:
            return game->reload();
        default:
            return;
        }
    }

    void playChapter(int chapter) {
        const std::string name = "CHAPTER" + std::to_string(chapter);
        const auto bit = static_cast<std::size_t>(chapter) - 1;
        waitForLevel(name);
        interlude(chapter);
        waitForLevel(name);
        EXPECT_FALSE(readProgress().test(bit));
        walk(name);
        waitUntil([bit] { return readProgress().test(bit); }, "the end of " + name);
    }

    /// The trap door, and the two pages behind it.
    void fallWithTooFewSecrets() {
        constexpr int longest = 1500;
        waitForLevel("the lamps");
        writeSecrets(ChapterBits().set().reset(3).reset(chapterCount - 1));
        const int deaths = readDeaths();
        Walkthrough(TOLMERE_TEST_LEVELS "/fall.walk").play(*game);
        game->letGo();
        EXPECT_EQ(readDeaths(), deaths + 1);
        for (int i = 0; i < longest && gameStarted; ++i) {
            game->hold("mouse", i % 100 < 10); // each click turns a page
            game->step();
        }
        game->letGo();
        waitForMenu();
        EXPECT_FALSE(readProgress().test(chapterCount - 1));
    }
    void takeChapterFromTheMenu(int chapter) {
        clickLine(line::chapters);
        clickLine(chapterRow(chapter).title);
    }
    /// Up to the old one and out, and back to a menu that knows it.
    void leaveWithAllSecrets() {
        waitForLevel("the lamps again");
        writeSecrets(ChapterBits().set().reset(chapterCount - 1));
        walk("CHAPTER15");
        waitForMenu();
        EXPECT_TRUE(readProgress().all());
        EXPECT_TRUE(readSecrets().all());
        EXPECT_TRUE(GameDriver::shows(text(line::allSecrets)));
    }

    std::optional<GameDriver> game;
};

} // namespace

TEST_F(LongPlay, FromTheStartScreenToBothEnds) {
    try {
        sitDown();
        clickLine(line::newGame);
        for (int chapter = 1; chapter < chapterCount; ++chapter) {
            playChapter(chapter);
        }
        fallWithTooFewSecrets();
        takeChapterFromTheMenu(chapterCount);
        leaveWithAllSecrets();
    } catch (const std::string& reason) {
        game->screenshot(startDirectory + "/long-play-failed.ppm");
        FAIL() << reason;
    }
}

#endif
