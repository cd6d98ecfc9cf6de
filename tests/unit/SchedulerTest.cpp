#include "support/EngineFixture.h"

#include "Files.h"
#include "ModuleManager.h"
#include "ProcessValues.h"

#include <algorithm>

namespace {

class CountingModule : public Module {
public:
    void update() override {
        ++updates;
        smallestDebt = std::min(smallestDebt, accumulator);
    }

    int updates = 0;
    double smallestDebt = 1000.0;
};

class Scheduler : public EngineFixture {
protected:
    CountingModule& add(double period, bool catchUp) {
        auto* module = new CountingModule;
        module->period = period;
        module->catchUp = catchUp;
        moduleManager().addModule(module);
        return *module;
    }

    void tickAfter(double seconds) {
        window->advance(seconds);
        moduleManager().tick();
    }
};

} // namespace

TEST_F(Scheduler, AFrameIsChargedTheMeanOfTenSamplesAndAStallIsClamped) {
    const ModuleManager& manager = moduleManager();
    tickAfter(0.01);
    EXPECT_NEAR(manager.frameTime, 0.01, 1e-6);
    tickAfter(0.04);
    EXPECT_NEAR(manager.frameTime, 0.025, 1e-6) << "of those that are there";
    for (int i = 0; i < 10; ++i) {
        tickAfter(0.01);
    }
    tickAfter(7.0);
    for (int i = 0; i < 9; ++i) {
        EXPECT_NEAR(manager.frameTime, 0.01 + 0.024, 1e-6);
        tickAfter(0.01);
    }
    EXPECT_NEAR(manager.frameTime, 0.01 + 0.024, 1e-6);
    tickAfter(0.01);
    EXPECT_NEAR(manager.frameTime, 0.01, 1e-6);
}

TEST_F(Scheduler, AModuleThatCatchesUpPaysItsWholeDebtAndALazyOneOneUpdateATick) {
    CountingModule& eager = add(1.0 / 64.0, true);
    CountingModule& lazy = add(1.0 / 64.0, false);
    tickAfter(5.0);
    EXPECT_EQ(eager.updates, 16) << "a quarter of a second";
    EXPECT_EQ(eager.smallestDebt, 0.0) << "a period is paid before its update";
    EXPECT_EQ(lazy.updates, 1);
    EXPECT_EQ(lazy.accumulator, 15.0 / 64.0);
}

TEST_F(Scheduler, ALimitedModuleRunsEveryTenthTickAndAnUnlimitedOneAtEach) {
    CountingModule& limited = add(1.0 / 30.0, false);
    CountingModule& unlimited = add(-1.0, false);
    for (int i = 0; i < 300; ++i) {
        tickAfter(1.0 / 300.0);
    }
    EXPECT_NEAR(limited.updates, 30, 1);
    EXPECT_EQ(unlimited.updates, 300);
}

TEST_F(Scheduler, AnInactiveModuleIsChargedNothing) {
    CountingModule& module = add(1.0 / 30.0, true);
    tickAfter(0.02);
    const double debt = module.accumulator;
    module.active = false;
    tickAfter(0.2);
    EXPECT_EQ(module.updates, 0);
    EXPECT_EQ(module.accumulator, debt);
}

TEST_F(Scheduler, TheLoopRunsATickBeforeItLooksWhetherToEnd) {
    CountingModule& module = add(-1.0, false);
    moduleManager().running = false;
    moduleManager().runLoop();
    EXPECT_EQ(module.updates, 1);
    moduleManager().running = true;
    window->close();
    moduleManager().runLoop();
    EXPECT_EQ(module.updates, 2);
}

TEST_F(Scheduler, SettingsReachTheDiskWhenSavedAndAFailureIsPrinted) {
    moduleManager().settingsText += "\r\nDEATHS 3";
    moduleManager().saveSettings();
    TempDirectory other;
    userPrefix = other.file("none/");
    testing::internal::CaptureStdout();
    moduleManager().saveSettings();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              userPrefix + "config.txt - no such file or directory\n");
    EXPECT_NE(readFile("config.txt").find("\r\nDEATHS 3"), std::string::npos);
}
