#include "Walkthrough.h"
#include "PlayFixture.h"

#include "Files.h"
#include "tools/mapc/MapCompiler.h"

// Walkthroughs play the levels by what a user has: keys, mouse and time. Each is the proof that its
// level can be finished.

namespace {

class Play : public PlayFixture {};

/// A small level about one thing, in the place of the first chapter.
class SmallLevel : public Play {
protected:
    explicit SmallLevel(std::string level) : path(TOLMERE_TEST_LEVELS "/" + std::move(level)) {}

    void prepareDirectory() override {
        Play::prepareDirectory();
        mapc::MapOptions options{mapc::TextureSizes("data"), "", "",
                                 [](const std::string&) { return false; }};
        std::vector<mapc::Problem> problems;
        const std::string text = mapc::compileMap(readFile(path + ".tmj"), options, problems);
        for (const mapc::Problem& problem : problems) {
            ADD_FAILURE() << mapc::describe(problem, path);
        }
        std::string packed;
        compress(text.data(), text.size(), packed);
        writeFile(packed, "maps/CHAPTER1.vkl");
    }

    std::string path; ///< Without its ending.
};

class HandsLevel : public SmallLevel {
protected:
    HandsLevel() : SmallLevel("hands") {}
};

} // namespace

TEST_F(HandsLevel, ACrateIsCarriedAndThrownAndALianaClimbed) {
    follow(path + ".walk", "hands-failed.ppm");
}

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
