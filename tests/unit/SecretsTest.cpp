#include "FlowFixture.h"

#include "Random.h"
#include "Steam.h"
#include "game/flow/Progress.h"
#include "graphicsModule/LightAdd.h"
#include "sceneManager/TestPlayer.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// A store that keeps what it is told.
class RecordingSteam : public SteamServices {
public:
    explicit RecordingSteam(std::vector<std::string>& list) : names(list) {}
    bool init() override { return true; }
    bool hasUserStats() override { return true; }
    bool hasUser() override { return true; }
    void runCallbacks() override {}
    bool setAchievement(const char* name) override {
        names.emplace_back(name);
        return true;
    }
    bool storeStats() override { return true; }
    void shutdown() override {}

private:
    std::vector<std::string>& names;
};

class Secrets : public FlowFixture {
protected:
    void SetUp() override {
        FlowFixture::SetUp();
        setSteam(std::make_unique<RecordingSteam>(achievements));
    }

    std::vector<std::string> achievements;
};

TEST_F(Secrets, AreCountedOnceToldAndReported) {
    run("SECRET3");
    EXPECT_EQ(shownWords(), "line 336 (1/15) ");
    run("SECRET15");
    run("SECRET3");
    EXPECT_EQ(shownWords(), "line 336 (2/15) ");
    EXPECT_EQ(readSecrets().to_string(), "100000000000100");
    EXPECT_THAT(achievements, ElementsAre("A3", "A3")) << "the last is none of the store's";
    step(360);
    EXPECT_EQ(shownWords(), "");
    setSteam(nullptr);
    testing::internal::CaptureStdout();
    run("SECRET1");
    EXPECT_THAT(testing::internal::GetCapturedStdout(), HasSubstr("SteamUserStats fail\n"));
    EXPECT_TRUE(readSecrets()[0]);
}

TEST_F(Secrets, TheSixthIsATrap) {
    addPlayer(0.0F, 0.0F);
    addNamed(300.0F, 0.0F, 5.0F, "SECRETSPAWN");
    run("SECRET6");
    step(2);
    EXPECT_EQ(movementLocked, 1);
    EXPECT_TRUE(sceneManager().player->isSpeaking());
    EXPECT_EQ(sceneManager().objects.size(), 2U);
    step(300);
    EXPECT_EQ(movementLocked, 0);
    step(300);
    ASSERT_EQ(sceneManager().objects.size(), 3U);
    EXPECT_EQ(sceneManager().objects[2]->asPlayer()->statistics.speed, 160.0F);
}

TEST_F(Secrets, GuardsTalkNowAndThenAndOneLineAtATime) {
    auto* guard = new TestPlayer;
    sceneManager().addSceneObject(guard);
    guard->addAddition(parseScript("SECRET11TALK"));
    int silentSteps = 0;
    for (int i = 0; i < 4000; ++i) {
        silentSteps += guard->isSpeaking() ? 0 : 1;
        guard->update(); // out of the world: nobody falls
    }
    EXPECT_GT(silentSteps, 500);
    EXPECT_LT(silentSteps, 3500);
}

TEST_F(Secrets, WhatIsDeadlyKillsThePlayerAndNobodyElse) {
    SceneObject* floor = addBox(0.0F, 0.0F, 200.0F, 10.0F, 0.0F);
    floor->addAddition(parseScript("SECRET9KILLPLAYER"));
    Player* bystander = addPlayer(-100.0F, 25.0F);
    Player* player = addPlayer(100.0F, 25.0F);
    step(3);
    EXPECT_EQ(bystander->statistics.health, 100);
    EXPECT_FALSE(sceneManager().contains(player));
}

TEST_F(Secrets, TheTenthFallsWhenFewMonstersAreLeft) {
    SceneObject* counter = addNamed(0.0F, 0.0F, 5.0F, "counter");
    counter->addAddition(parseScript("DELAY 10 SECRET10CHECK"));
    step(12);
    EXPECT_TRUE(readSecrets()[9]);
    EXPECT_TRUE(counter->additions.empty());
}

TEST_F(Secrets, LampsOfTheLastRoomTellWhatWasFound) {
    std::vector<LightAdd*> lamps;
    for (int number = 1; number <= 14; ++number) {
        lamps.push_back(new LightAdd(LightProperties()));
        addNamed(100.0F * static_cast<float>(number), 0.0F, 5.0F, "S" + std::to_string(number))
            ->addAddition(lamps.back());
    }
    writeSecrets(ChapterBits("011111111111110")); // all but the first
    run("CH15CHECKSECRET");
    step(60 * 15 + 10);
    EXPECT_EQ(lamps[0]->getProperties().red, 1.0F);
    EXPECT_EQ(lamps[0]->getProperties().green, 0.0F);
    EXPECT_EQ(lamps[1]->getProperties().green, 1.0F);
    EXPECT_EQ(lamps[13]->getProperties().green, 1.0F);
}

} // namespace
