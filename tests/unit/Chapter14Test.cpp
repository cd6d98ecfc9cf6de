#include "support/EngineFixture.h"

#include "People.h"

#include <algorithm>
#include <utility>

// What a look does in the painted day.

namespace {

class Daylight : public EngineFixture {
protected:
    /// Steps in which the protagonist hangs at the place and looks to the side.
    void look(TestPlayer& player, const btVector3& place, float dx, int steps) {
        for (int i = 0; i < steps; ++i) {
            put(player, place.x(), place.y());
            player.aimPoint = place + btVector3(dx, 0, 0);
            step();
        }
    }
};

TEST_F(Daylight, FollowersComeCloserBehindTheBackAsFarAsTheirMannersAndTheirRoomAllow) {
    for (const auto& [roomEnds, stops] : {std::pair{500.0F, -120.0F}, {-200.0F, -200.0F}}) {
        addNamed("DZIWL", -1000, 200);
        addNamed("DZIWR", roomEnds, 200);
        const SceneObject* first = addNamed("DZIWA", -300, 300, 40, "CH14DZIW1");
        const SceneObject* second = addNamed("DZIWB", -400, 300, 40, "CH14DZIW1");
        TestPlayer* player = addProtagonist(0, 0);

        look(*player, {0, 300, 0}, -100, 20);
        EXPECT_FLOAT_EQ(originOf(*first).x(), -300) << "looked at";
        look(*player, {0, 300, 0}, 100, 300);
        EXPECT_NEAR(originOf(*first).x(), stops, 2);
        EXPECT_NEAR(originOf(*second).x(), std::min(-195.0F, roomEnds), 2);
        sceneManager().clearScene();
    }
}

TEST_F(Daylight, TheGateHeedsOnlyWhoIsLookedAtOnTheMark) {
    addNamed("SLAD", 0, 300);
    addNamed("KLAPAPOS", 500, 0);
    addNamed("KLAPADEST", 500, 100);
    const SceneObject* gate = addNamed("KLAPA", 500, 0, 40, "CH14DZIW3");
    SceneObject* thing = addNamed("DZIWC", 30, 300);
    TestPlayer* player = addProtagonist(0, 0);

    look(*player, {300, 300, 0}, 100, 20);
    EXPECT_FLOAT_EQ(originOf(*gate).y(), 0) << "behind the back";
    look(*player, {300, 300, 0}, -100, 60);
    EXPECT_FLOAT_EQ(originOf(*gate).y(), 100);
    thing->moveBy(100, 0);
    look(*player, {300, 300, 0}, -100, 60);
    EXPECT_FLOAT_EQ(originOf(*gate).y(), 0) << "off the mark";
}

} // namespace
