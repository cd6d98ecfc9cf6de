#include "Engine.h"

#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Startup.h"
#include "platform/Window.h"
#include "sceneManager/SceneManager.h"

#include <chrono>
#include <cstdlib>
#include <iostream>

Engine::Engine() {
    const auto start = std::chrono::steady_clock::now();
    moduleManager();
    if (!platform::window().open({windowWidth, windowHeight, false, 0})) {
        std::cerr << "no display: " << platform::window().failure() << '\n';
        std::exit(1);
    }
    platform::window().setSwapInterval(0);
    createServices();
    sceneManager();
    secondsToStart =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Engine::~Engine() {
    deleteServices();
    platform::setWindow(nullptr);
}
