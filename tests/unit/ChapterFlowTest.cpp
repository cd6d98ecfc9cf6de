#include "FlowFixture.h"

#include "GameStart.h"
#include "ModuleManager.h"
#include "Settings.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Progress.h"
#include "graphicsModule/Camera.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class ChapterFlow : public FlowFixture {
protected:
    static btVector3 placeOfPlayer() { return originOf(*sceneManager().player); }

    /// A game in a level of a floor alone.
    static void enterSmallLevel() {
        writeMap("SMALL.vkl");
        startInLevel({"SMALL.vkl"});
    }
};

TEST_F(ChapterFlow, ADoubleClickInTheMenuStartsOneGame) {
    startNewGame();
    startNewGame();
    continueGame();
    startChapter(3);
    EXPECT_EQ(physicsModule().getGlobalScripts().size(), 2U); // the watch, and the way there
    EXPECT_EQ(cutsOn, 1);
}

TEST_F(ChapterFlow, EachChapterIsEnteredFromItsIntroSavedNamedAndFinished) {
    for (int chapter = 2; chapter <= chapterCount; ++chapter) {
        const std::string name = "CHAPTER" + std::to_string(chapter);
        SCOPED_TRACE(name);
        const ChapterRow& row = chapterRow(chapter);
        writeMap(name + ".vkl");
        setLatestSave("none");
        chapterFlags[3] = 7;
        movementLocked = 1;
        run(name + "INTRO");
        EXPECT_EQ(graphicsModule().ambient[0], row.ambient);
        EXPECT_EQ(graphicsModule().camera->owner != nullptr, row.followsBackdrop);
        ASSERT_TRUE(stepUntilPlayer(5000));
        const auto [x, y] = row.start.value_or(Place{100.0F, 60.0F});
        EXPECT_EQ(placeOfPlayer(), btVector3(x, y, 0.0F));
        EXPECT_EQ(sceneManager().player->hasName("EVILPLAYERLVL"), chapter == 10);
        EXPECT_EQ(chapterFlags[3], 0);
        EXPECT_EQ(movementLocked, 0);
        EXPECT_NE(latestSave(), "none");
        EXPECT_EQ(shownWords(), "line " + std::to_string(row.title) + " ");
        run("CH" + std::to_string(chapter) + "END");
        EXPECT_EQ(levelRunning, 0);
        EXPECT_TRUE(readProgress()[static_cast<std::size_t>(chapter) - 1]);
        physicsModule().removeAllScripts();
        step(2);
    }
}

TEST_F(ChapterFlow, ALevelWithoutAPlaceToStartLeavesTheCharacterWhereItWasMade) {
    writeMap("CHAPTER6.vkl", "elsewhere");
    startInLevel(levelOf(6));
    EXPECT_EQ(placeOfPlayer(), btVector3(500.0F, 500.0F, 0.0F));
}

TEST_F(ChapterFlow, AnObjectMayReplaceTheSceneThatItIsPartOf) {
    for (const char* word : {"LOADLASTSAVE", "CHAPTER3INTRO", "CH1KO", "BADENDING1", "CHAPTER4"}) {
        enterSmallLevel();
        sceneManager().objects[0]->addAddition(parseScript(std::string("LOCK DELAY 3 ") + word));
        step(5);
        EXPECT_EQ(sceneManager().getSceneObject("floor") != nullptr, word[0] == 'L') << word;
        physicsModule().removeAllScripts();
        step();
    }
}

TEST_F(ChapterFlow, ADeathWithoutASaveLeadsBackToTheStartOfTheLevel) {
    enterSmallLevel();
    run("CHECKINGFORPLAYERDEATH");
    for (int deaths = 1; deaths <= 2; ++deaths) {
        runScript("CHECKINGFORPLAYERDEATH"); // a second watch, as Continue leaves one
        step(10);
        sceneManager().player->hurt(1000);
        step(2);
        EXPECT_EQ(sceneManager().player, nullptr);
        step(100);
        ASSERT_NE(sceneManager().player, nullptr);
        EXPECT_EQ(sceneManager().player->statistics.health, 100);
        EXPECT_EQ(sceneManager().objects.size(), 3U);
        EXPECT_EQ(readDeaths(), deaths);
    }
    step(200);
    EXPECT_EQ(physicsModule().getGlobalScripts().size(), 1U); // the watch alone
    EXPECT_TRUE(graphicsModule().fadesFinished());
}

TEST_F(ChapterFlow, AMissingMapIsToldInTheMenuAndEndsADirectStart) {
    startChapter(3);
    run("CHAPTER3");
    step();
    EXPECT_THAT(shownWords(), HasSubstr("line 432 (maps/CHAPTER3.vkl - no such file"));
    EXPECT_EQ(sceneManager().player, nullptr);
    EXPECT_EQ(levelRunning, 0);

    moduleManager().running = true;
    setModifier("START_CHAPTER", 3, moduleManager().settingsText);
    gameStart();
    EXPECT_FALSE(moduleManager().running);
    moduleManager().running = true;
    writeMap("CHAPTER3.vkl");
    gameStart();
    EXPECT_TRUE(moduleManager().running);
    EXPECT_EQ(placeOfPlayer(), btVector3(-600.0F, 0.0F, 0.0F));
}

} // namespace
