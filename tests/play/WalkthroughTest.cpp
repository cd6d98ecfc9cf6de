#include "Walkthrough.h"
#include "PlayFixture.h"

// Walkthroughs play the levels by what a user has: keys, mouse and time. Each is the proof that its
// level can be finished.

namespace {

class Play : public PlayFixture {};

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
