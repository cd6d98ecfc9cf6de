#include "Startup.h"

#include "support/EngineFixture.h"

#include "ModuleManager.h"
#include "ProcessValues.h"
#include "physicsModule/PhysicsModule.h"

#include <fstream>
#include <sstream>

namespace {

using Modes = std::vector<platform::VideoMode>;

/// The engine on settings of which some lines are others.
class StartupTest : public EngineFixture {
protected:
    void SetUp() override {}

    void startWith(const std::string& from, const std::string& to) {
        original = from;
        changed = to;
        EngineFixture::SetUp();
    }

    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        std::ostringstream content;
        content << std::ifstream("config.txt", std::ios::binary).rdbuf();
        std::string settings = content.str();
        settings.replace(settings.find(original), original.size(), changed);
        directory.write("config.txt", settings);
    }

private:
    std::string original;
    std::string changed;
};

} // namespace

TEST(WindowSizeChoice, TakesTheLastModeThatIsLargeAndOfTrueColour) {
    const Modes modes{
        {800, 600, 8, 8, 8}, {1024, 768, 5, 8, 5}, {1920, 1080, 5, 6, 5}, {2000, 512, 8, 8, 8}};
    const auto size = chooseWindowSize(modes);
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 1024);
    EXPECT_EQ(size->height, 768);
    EXPECT_TRUE(chooseWindowSize(Modes{{513, 513, 8, 8, 8}}));
    EXPECT_FALSE(chooseWindowSize(Modes{{512, 800, 8, 8, 8}, {800, 512, 8, 8, 8}}));
}

TEST_F(StartupTest, EagerPhysicsPaysItsDebtAtOnceAndLazyPhysicsDoesNot) {
    startWith("LAZY_PHYSICS 0", "LAZY_PHYSICS 0");
    EXPECT_TRUE(physicsModule().catchUp);
    EXPECT_EQ(physicsModule().period, 1.0 / 60.0);
    TearDown();
    startWith("LAZY_PHYSICS 0", "LAZY_PHYSICS 1");
    EXPECT_FALSE(physicsModule().catchUp);
    TearDown();
    startWith("LAZY_PHYSICS 0", "");
    EXPECT_FALSE(physicsModule().catchUp);
}

TEST_F(StartupTest, AStepIsTheInverseOfThePhysicsSpeedAndStaysFinite) {
    startWith("PHYSICS_SPEED 60", "PHYSICS_SPEED 30");
    EXPECT_EQ(physicsStep, 1.0F / 30.0F);
    for (const char* bad : {"PHYSICS_SPEED 0", "PHYSICS_SPEED -60", "PHYSICS_SPEED x", ""}) {
        TearDown();
        startWith("PHYSICS_SPEED 60", bad);
        EXPECT_EQ(physicsStep, 1.0F / 60.0F) << bad;
    }
}

TEST_F(StartupTest, AMinimisedWindowIsNotDrawnWhileTheRestGoesOn) {
    startWith("MAX_FPS -1", "MAX_FPS -1");
    frame(3);
    const int swaps = window->swaps;
    const auto steps = physicsModule().stepCount;
    window->minimise();
    frame(60);
    EXPECT_LE(window->swaps, swaps + 1);
    EXPECT_GT(physicsModule().stepCount, steps + 50);
    EXPECT_EQ(windowWidth, 1280);
    window->resize(1000, 700);
    frame(2);
    EXPECT_EQ(windowWidth, 1000);
    EXPECT_EQ(windowHeight, 700);
    EXPECT_GT(window->swaps, swaps);
    EXPECT_EQ(window->resizes, 0) << "the window has the size that it reports";
}
