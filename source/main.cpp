#include "ModuleManager.h"
#include "Startup.h"

#include <SDL.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

extern "C" {
/// Asks NVIDIA's driver on machines with two graphics processors for the faster one.
std::int32_t NvOptimusEnablement = 1;
}

namespace {

int runGame() {
    try {
        startUp();
        moduleManager().runLoop();
        shutDown();
    } catch (const std::string& message) {
        std::cout << message << std::endl;
        return 1;
    }
    return 0;
}

} // namespace

int main(int, char**) {
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ); // lines reach a log file as they come
    SDL_SetMainReady();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // control-C in a terminal ends the game
    if (SDL_Init(SDL_INIT_NOPARACHUTE) != 0) {
        std::fprintf(stderr, "%s: %s\n", "WinMain() error", SDL_GetError());
        return 0;
    }
    std::atexit(SDL_Quit);
    return runGame();
}
