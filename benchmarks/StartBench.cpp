#include "Engine.h"

#include "GameStart.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneManager.h"

#include <benchmark/benchmark.h>

#include <chrono>

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

BENCHMARK(firstPicture)->Iterations(1);
