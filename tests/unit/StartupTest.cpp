#include "Startup.h"

#include "support/EngineFixture.h"

#include "Files.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "physicsModule/PhysicsModule.h"

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
        std::string settings = readFile("config.txt");
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

TEST_F(StartupTest, PhysicsTakesItsPaceFromItsSettingsAndStaysFinite) {
    struct Case {
        const char *from, *to;
        bool catchesUp;
        float stepSeconds;
    };
    const Case cases[] = {{"LAZY_PHYSICS 0", "LAZY_PHYSICS 0", true, 1.0F / 60.0F},
                          {"LAZY_PHYSICS 0", "LAZY_PHYSICS 1", false, 1.0F / 60.0F},
                          {"LAZY_PHYSICS 0", "", false, 1.0F / 60.0F},
                          {"PHYSICS_SPEED 60", "PHYSICS_SPEED 30", true, 1.0F / 30.0F},
                          {"PHYSICS_SPEED 60", "PHYSICS_SPEED 0", true, 1.0F / 60.0F},
                          {"PHYSICS_SPEED 60", "PHYSICS_SPEED -60", true, 1.0F / 60.0F},
                          {"PHYSICS_SPEED 60", "PHYSICS_SPEED x", true, 1.0F / 60.0F},
                          {"PHYSICS_SPEED 60", "", true, 1.0F / 60.0F}};
    for (const Case& c : cases) {
        startWith(c.from, c.to);
        EXPECT_EQ(physicsModule().catchUp, c.catchesUp) << c.to;
        EXPECT_EQ(physicsStep, c.stepSeconds) << c.to;
        TearDown();
    }
    startWith("", "");
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
