#include "Engine.h"

#include "GameStart.h"
#include "ModuleManager.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/GameEntry.h"
#include "game/menu/MainMenu.h"
#include "graphicsModule/GraphicsModule.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneManager.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

// From the opening of the window to the first picture of the first level: at most two seconds.

static void firstPicture(benchmark::State& state) {
    double seconds = Engine::secondsToStart;
    for ([[maybe_unused]] auto turn : state) {
        const auto start = std::chrono::steady_clock::now();
        gameStart();
        physicsModule().update();
        graphicsModule().update();
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    state.counters["seconds"] = seconds;
    state.counters["limit"] = 2.0;
    physicsModule().removeAllScripts();
    sceneManager().clearScene();
    physicsModule().update();
}

/// The way from the menu into a new game. No tick on it may stand out by more than three times: the
/// longest against the median, up to the first picture of the intro.
static void newGameTicks(benchmark::State& state) {
    constexpr int longestWay = 2000; // ticks
    registerFlowCommands();
    createMenu();
    moduleManager().tick();
    std::vector<double> ticks;
    for ([[maybe_unused]] auto turn : state) {
        startNewGame();
        const Camera* menuCamera = graphicsModule().camera;
        for (int i = 0; i < longestWay && graphicsModule().camera == menuCamera; ++i) {
            const auto start = std::chrono::steady_clock::now();
            moduleManager().tick();
            ticks.push_back(
                std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        }
    }
    std::sort(ticks.begin(), ticks.end());
    constexpr double limit = 3.0;
    const double ratio = ticks.back() / ticks[ticks.size() / 2];
    state.counters["ratio"] = ratio;
    state.counters["limit"] = limit;
    if (ratio > limit) {
        state.SetLabel("OVER THE LIMIT");
    }
    physicsModule().removeAllScripts();
    inputModule().removeAllFrames();
    sceneManager().clearScene();
    physicsModule().update();
}

BENCHMARK(firstPicture)->Iterations(1);
BENCHMARK(newGameTicks)->Iterations(1);
