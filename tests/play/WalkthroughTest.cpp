#include "Walkthrough.h"
#include "GameDriver.h"

#include "support/EngineFixture.h"
#include "support/HeldWindow.h"

#include "Files.h"
#include "graphicsModule/GlDevice.h"

#include <cstdlib>
#include <filesystem>

// Walkthroughs play the levels by what a user has: keys, mouse and time. Each is the proof that its
// level can be finished. With TOLMERE_PICTURES=DIRECTORY the window has its full size and a picture
// of every second is kept there.

namespace {

namespace fs = std::filesystem;

/// The engine among the built assets, in a small window: software drawing is bound by pixels.
class Play : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        fs::remove_all("data");
        fs::create_directory_symlink(TOLMERE_GAME_DIRECTORY "/data", "data");
        fs::remove("lang_eng.txt");
        fs::copy_file(TOLMERE_GAME_DIRECTORY "/lang_eng.txt", "lang_eng.txt");
        fs::copy(TOLMERE_GAME_DIRECTORY "/maps", "maps",
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        if (pictures != nullptr) {
            return;
        }
        std::string settings = readFile("config.txt");
        settings.replace(settings.find("WINDOW_WIDTH 1280"), 17, "WINDOW_WIDTH 820");
        settings.replace(settings.find("WINDOW_HEIGHT 800"), 17, "WINDOW_HEIGHT 512");
        writeFile(settings, "config.txt");
    }
    std::unique_ptr<platform::Window> makeInnerWindow() override {
        return std::make_unique<HeldWindow>();
    }
    std::unique_ptr<PaintDevice> makeDevice() override { return std::make_unique<GlDevice>(); }

    const char* pictures = std::getenv("TOLMERE_PICTURES");

    static std::string pathOf(const std::string& chapter) {
        return TOLMERE_MAP_SOURCES "/" + chapter + ".walk";
    }

    /// Plays a walkthrough; a failure names the place and leaves a picture of it.
    std::size_t play(const std::string& chapter, const char* picture) {
        GameDriver game(*window);
        if (pictures != nullptr) {
            game.keepPictures(pictures, 60);
        }
        try {
            const Walkthrough walkthrough(pathOf(chapter));
            walkthrough.play(game);
        } catch (const std::string& reason) {
            game.screenshot(startDirectory + "/" + picture);
            ADD_FAILURE() << reason << "\nseen in " << startDirectory << "/" << picture;
        }
        return GameDriver::sceneHash();
    }
};

} // namespace

TEST_F(Play, Chapter1IsFinishedFromItsStartToItsRightEnd) {
    play("CHAPTER1", "chapter1-failed.ppm");
}

TEST_F(Play, TwoRunsOfAWalkthroughEndInTheSameScene) {
    const std::size_t first = play("CHAPTER1", "chapter1-first.ppm");
    TearDown();
    SetUp();
    EXPECT_EQ(first, play("CHAPTER1", "chapter1-second.ppm"));
}

// What a walkthrough expects, it expects of a character that stands still: places to save at.
TEST_F(Play, Chapter1IsFinishedThroughASaveAtEachOfItsExpectations) {
    GameDriver game(*window);
    const Walkthrough walkthrough(pathOf("CHAPTER1"));
    Direction pause;
    pause.steps = 25; // a new character cannot jump for a third of a second
    for (const Direction& direction : walkthrough.getDirections()) {
        if (direction.verb == Direction::Verb::expect) {
            game.reload();
            walkthrough.follow(pause, game);
        }
        try {
            walkthrough.follow(direction, game);
        } catch (const std::string& reason) {
            game.screenshot(startDirectory + "/chapter1-reloaded.ppm");
            FAIL() << direction.text << ": " << reason << ", " << game.describePlace();
        }
    }
}
