#include "Walkthrough.h"
#include "PlayFixture.h"

#include "Files.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Progress.h"
#include "sceneManager/SceneManager.h"
#include "tools/mapc/MapCompiler.h"

#include <filesystem>

// Walkthroughs play the levels by what a user has: keys, mouse and time. Each is the proof that its
// level can be finished.

namespace {

class Play : public PlayFixture {};

/// A small level about one thing.
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
        writeFile(packed, "maps/LEVEL.vkl");
    }

    std::string path; ///< Without its ending.
};

/// A chapter that has a walkthrough to its end, by its number.
class Chapters : public Play, public testing::WithParamInterface<int> {
protected:
    void SetUp() override {
        Play::SetUp();
        if (GetParam() == chapterCount) { // leads on only whoever has found all secrets before it
            writeSecrets(ChapterBits().set().reset(chapterCount - 1));
        }
    }

    std::string name() const { return "CHAPTER" + std::to_string(GetParam()); }
};

class HandsLevel : public SmallLevel {
protected:
    HandsLevel() : SmallLevel("hands") {}
};

class HuntLevel : public SmallLevel {
protected:
    HuntLevel() : SmallLevel("hunt") {}
};

void forgetSaves() {
    for (const auto& save : std::filesystem::directory_iterator("save")) {
        std::filesystem::remove(save);
    }
}

/// Plays on from each save that the level makes, and from one at each expectation of the
/// walkthrough. What is expected there is expected of a character that stands still: places to save
/// at.
void playThroughSaves(const std::string& path, GameDriver& game) {
    const Walkthrough walkthrough(path);
    Direction pause;
    pause.steps = 25; // a new character cannot jump for a third of a second
    for (const Direction& direction : walkthrough.getDirections()) {
        if (direction.verb == Direction::Verb::expect) {
            game.reload();
            walkthrough.follow(pause, game);
        }
        try {
            forgetSaves();
            walkthrough.follow(direction, game);
            if (!std::filesystem::is_empty("save")) {
                game.loadLatest();
                walkthrough.follow(pause, game);
                walkthrough.follow(direction, game);
            }
        } catch (const std::string& reason) {
            throw direction.text + ": " + reason + ", " + game.describePlace();
        }
    }
}

/// The chapters from the second on that have a walkthrough. Where every step takes ten times as
/// long, as under the sanitizers, three short ones stand for all: heat and machines, water, and
/// monsters in daylight.
std::vector<int> chaptersToWalk() {
    if constexpr (!TOLMERE_ALL_CHAPTERS) {
        return {4, 5, 14};
    }
    std::vector<int> numbers;
    for (int number = 2; number <= chapterCount; ++number) {
        const std::string name = "/CHAPTER" + std::to_string(number) + ".walk";
        if (std::filesystem::exists(TOLMERE_MAP_SOURCES + name)) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

} // namespace

TEST_F(HuntLevel, AMonsterThatFollowsIntoTheLightDies) {
    follow("LEVEL.vkl", path + ".walk", "hunt-failed.ppm");
}

TEST_F(HandsLevel, ACrateIsCarriedAndThrownAndALianaClimbed) {
    follow("LEVEL.vkl", path + ".walk", "hands-failed.ppm");
}

TEST_F(Play, Chapter1IsFinishedAndLeadsToTheNext) {
    constexpr int longest = 900; // steps
    GameDriver game(*window, "CHAPTER1.vkl");
    try {
        Walkthrough(pathOf("CHAPTER1")).play(game);
    } catch (const std::string& reason) {
        game.screenshot(startDirectory + "/chapter1-failed.ppm");
        FAIL() << reason;
    }
    for (int i = 0; i < longest && !readProgress()[0]; ++i) {
        game.step();
    }
    EXPECT_TRUE(readProgress()[0]);
    EXPECT_TRUE(readSecrets()[0]);
    EXPECT_EQ(sceneManager().player, nullptr) << "the intro of the next one runs";
}

TEST_F(Play, TwoRunsOfAWalkthroughEndInTheSameScene) {
    const std::size_t first = play("CHAPTER1", "chapter1-first.ppm");
    TearDown();
    SetUp();
    EXPECT_EQ(first, play("CHAPTER1", "chapter1-second.ppm"));
}

TEST_F(Play, Chapter1IsFinishedThroughASaveAtEachOfItsExpectations) {
    GameDriver game(*window, "CHAPTER1.vkl");
    try {
        playThroughSaves(pathOf("CHAPTER1"), game);
    } catch (const std::string& reason) {
        game.screenshot(startDirectory + "/chapter1-reloaded.ppm");
        FAIL() << reason;
    }
}

TEST_F(Play, WhoHasFoundTooFewSecretsFallsInTheLastChapterAndGoesBackToTheMenu) {
    constexpr int longest = 1200; // steps
    writeSecrets(ChapterBits().set().reset(3).reset(chapterCount - 1));
    GameDriver game(*window, "CHAPTER15.vkl");
    try {
        Walkthrough(TOLMERE_TEST_LEVELS "/fall.walk").play(game);
    } catch (const std::string& reason) {
        game.screenshot(startDirectory + "/fall-failed.ppm");
        FAIL() << reason;
    }
    EXPECT_EQ(readDeaths(), 1);
    EXPECT_FALSE(readProgress().any());
    EXPECT_TRUE(gameStarted);
    for (int i = 0; i < longest && gameStarted; ++i) { // each click turns a page
        game.hold("mouse", i % 100 < 10);
        game.step();
    }
    EXPECT_FALSE(gameStarted) << "the menu is there";
    EXPECT_EQ(readSecrets().count(), 13U);
}

TEST_P(Chapters, IsFinishedFromItsStartToItsEnd) {
    play(name(), name() + "-failed.ppm");
    EXPECT_TRUE(readProgress()[static_cast<std::size_t>(GetParam()) - 1]);
}

TEST_P(Chapters, IsFinishedThroughASaveAtEachExpectation) {
    GameDriver game(*window, name() + ".vkl");
    try {
        playThroughSaves(pathOf(name()), game);
    } catch (const std::string& reason) {
        game.screenshot(startDirectory + "/" + name() + "-reloaded.ppm");
        FAIL() << reason;
    }
    EXPECT_TRUE(readProgress()[static_cast<std::size_t>(GetParam()) - 1]);
}

INSTANTIATE_TEST_SUITE_P(Walk, Chapters, testing::ValuesIn(chaptersToWalk()),
                         [](const auto& chapter) { return std::to_string(chapter.param); });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Chapters);
