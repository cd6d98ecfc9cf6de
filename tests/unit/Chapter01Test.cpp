#include "FlowFixture.h"

#include "sceneManager/EvilPlayer.h"

#include <algorithm>
#include <array>

// Three who sleep behind bars, and how they are woken.

namespace {

class Sleepers : public FlowFixture {
protected:
    void SetUp() override {
        FlowFixture::SetUp();
        for (EvilPlayer*& sleeper : sleepers) {
            const auto number = static_cast<int>(&sleeper - sleepers.data()) + 1;
            sleeper = new EvilPlayer;
            sleeper->state = EvilState::puppet;
            sleeper->addAddition(parseScript("NAME ENEMY" + std::to_string(number)));
            sleeper->physicsObject->body->translate({100.0F * static_cast<float>(number), 0, 0});
            sceneManager().addSceneObject(sleeper);
        }
    }

    bool allDo(EvilState state) const {
        return std::all_of(sleepers.begin(), sleepers.end(),
                           [state](const EvilPlayer* sleeper) { return sleeper->state == state; });
    }

    std::array<EvilPlayer*, 3> sleepers{};
};

TEST_F(Sleepers, HuntAfterASceneTheFirstTimeAndAtOnceFromThenOn) {
    constexpr int longest = 2500; // steps
    cutsOn = 1;
    run("CH1SC");
    step(2);
    EXPECT_EQ(movementLocked, 1);
    for (int i = 0; i < longest && movementLocked != 0; ++i) {
        step();
    }
    EXPECT_EQ(movementLocked, 0);
    EXPECT_TRUE(allDo(EvilState::puppet)) << "there is time to run";
    step(60);
    EXPECT_TRUE(allDo(EvilState::hunter));
    EXPECT_EQ(cutsOn, 0);

    for (EvilPlayer* sleeper : sleepers) {
        sleeper->state = EvilState::puppet;
    }
    run("CH1SC");
    step(2);
    EXPECT_EQ(movementLocked, 0);
    EXPECT_TRUE(allDo(EvilState::hunter));
}

TEST_F(Sleepers, GoWhenTheirPreyHasGotAway) {
    run("CH1ER");
    step();
    EXPECT_TRUE(sceneManager().objects.empty());
}

} // namespace
