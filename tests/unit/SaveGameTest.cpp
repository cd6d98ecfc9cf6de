#include "FlowFixture.h"

#include "Files.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "game/flow/GameEntry.h"
#include "game/flow/Progress.h"
#include "game/flow/SaveGame.h"
#include "inputModule/InputModule.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>

#include <sys/resource.h>

using testing::HasSubstr;

namespace {

class SaveGame : public FlowFixture {
protected:
    void SetUp() override {
        FlowFixture::SetUp();
        writeMap("SMALL.vkl");
        startInLevel({"SMALL.vkl"});
        step();
    }

    static Player& player() { return *sceneManager().player; }
    static btRigidBody& bodyOfPlayer() { return *player().physicsObject->body; }

    static std::size_t savedFiles() {
        const std::filesystem::directory_iterator files("save");
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }
};

/// No file gets any further than so many bytes, as on a full disk.
class FullDisk {
public:
    FullDisk() : handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{20, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handler)(int);
    rlimit before{};
};

TEST_F(SaveGame, IsNamedByItsLocalTime) {
    std::tm time{};
    time.tm_year = 2014 - 1900;
    time.tm_mon = 0;
    time.tm_mday = 25;
    time.tm_hour = 13;
    time.tm_min = 5;
    time.tm_sec = 9;
    EXPECT_EQ(saveName(time), "save2014-1-25_13;5;9.vkl");
}

TEST_F(SaveGame, ADeathLeadsBackToTheLatestSave) {
    bodyOfPlayer().setLinearVelocity({100.0F, 0.0F, 0.0F});
    player().statistics.speed = 123.0F;
    player().statistics.health = 10;
    run("ISAVEGAME");
    EXPECT_EQ(bodyOfPlayer().getLinearVelocity(), btVector3(0.0F, 0.0F, 0.0F));
    EXPECT_TRUE(std::filesystem::exists("save/" + latestSave()));
    EXPECT_TRUE(saveIsUsable());
    chapterFlags[0] = 5;
    movementLocked = 1;
    player().hurt(1000);
    step(110);
    EXPECT_EQ(player().statistics.speed, 123.0F);
    EXPECT_EQ(player().statistics.health, 100);
    EXPECT_EQ(movementLocked, 0);
    EXPECT_EQ(chapterFlags[0], 0);
    std::filesystem::remove("save/" + latestSave());
    player().hurt(1000);
    step(110);
    EXPECT_NE(sceneManager().player, nullptr) << "a save is read once in a run";
    EXPECT_EQ(readDeaths(), 2);
}

TEST_F(SaveGame, TheSecondOfTwoSavesOfTheSameNameIsTheOneThatIsLoaded) {
    for (const float speed : {123.0F, 124.0F}) {
        player().statistics.speed = speed;
        saveGameAs("save.vkl");
        loadLastSave();
        EXPECT_EQ(player().statistics.speed, speed);
    }
}

TEST_F(SaveGame, ACheckpointFlickersAndSavesAtTheThirdFlash) {
    run("SAVEGAME");
    step(96); // each wait begins in the step in which the one before it ends
    EXPECT_EQ(savedFiles(), 0U);
    EXPECT_EQ(physicsRunning, 0);
    step();
    EXPECT_EQ(savedFiles(), 1U);
    EXPECT_EQ(graphicsModule().screenFadeTarget[3], 1.0F);
    step(24);
    EXPECT_EQ(physicsRunning, 1);
    EXPECT_EQ(graphicsModule().screenFadeTarget[3], 0.0F);
    sceneManager().removeSceneObject(&player());
    setLatestSave("");
    run("ISAVEGAME");
    EXPECT_EQ(latestSave(), "") << "nobody is there to be saved";
}

TEST_F(SaveGame, ASaveThatIsUnusableIsToldInTheMenuAndNothingIsLost) {
    saveGameAs("good.vkl");
    writeMap("nobody.vkl");
    std::filesystem::rename("maps/nobody.vkl", "save/nobody.vkl");
    const std::string good = readFile("save/good.vkl");
    directory.write("save/short.vkl", good.substr(0, good.size() / 2));
    directory.write("save/text.vkl", "not packed");
    std::string cut;
    compress("3 0 2", 5, cut);
    directory.write("save/cut.vkl", cut);
    std::filesystem::create_directory("save/folder");
    for (const char* name :
         {"gone.vkl", "folder", ".", "short.vkl", "text.vkl", "cut.vkl", "nobody.vkl"}) {
        SCOPED_TRACE(name);
        startInLevel({"SMALL.vkl"});
        setLatestSave(name);
        run("LOADLASTSAVE");
        EXPECT_THAT(shownWords(), HasSubstr("line 430 ("));
        EXPECT_EQ(levelRunning, 0);
        EXPECT_EQ(sceneManager().player, nullptr);
        EXPECT_EQ(latestSave(), name);
        step(5);
        EXPECT_EQ(readDeaths(), 0);
    }
    EXPECT_EQ(readFile("save/good.vkl"), good);
    setLatestSave("gone.vkl");
    EXPECT_FALSE(saveIsUsable());
    setLatestSave("");
    EXPECT_FALSE(saveIsUsable());
}

TEST_F(SaveGame, AFullDiskOrAFolderThatIsGoneIsToldAndTheGameGoesOn) {
    saveGameAs("old.vkl");
    const std::string old = readFile("save/old.vkl");
    {
        const FullDisk full;
        run("ISAVEGAME");
        countDeath(); // cannot reach the disk either
    }
    EXPECT_THAT(shownWords(), HasSubstr("line 431 ("));
    EXPECT_EQ(latestSave(), "old.vkl");
    EXPECT_EQ(savedFiles(), 1U);
    EXPECT_EQ(readFile("save/old.vkl"), old);
    inputModule().removeAllFrames();
    std::filesystem::rename("save", "elsewhere");
    run("ISAVEGAME");
    EXPECT_THAT(shownWords(), HasSubstr("no such file"));
    EXPECT_EQ(latestSave(), "old.vkl");
    step(5);
    EXPECT_EQ(levelRunning, 1);
    EXPECT_NE(sceneManager().player, nullptr);
}

TEST_F(SaveGame, ProgressOfAnyLengthIsReadFromItsLastDigit) {
    struct Case {
        const char *stored, *read;
    };
    for (const Case& c : {Case{"1", "000000000000001"}, Case{"0000000000000100", "000000000000010"},
                          Case{"x1y10", "000000000001010"}, Case{"", "000000000000000"}}) {
        for (const char* key : {"MAGIC_NUMBER", "SECRETS"}) {
            setModifier(key, std::string(c.stored), moduleManager().settingsText);
        }
        EXPECT_EQ(readProgress().to_string(), c.read) << c.stored;
        EXPECT_EQ(readSecrets().to_string(), c.read) << c.stored;
    }
}

} // namespace
