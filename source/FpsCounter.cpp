#include "FpsCounter.h"

#include "ModuleManager.h"

#include <iostream>

FpsCounter& fpsCounter() {
    return service<FpsCounter>();
}

void FpsCounter::update() {
    ++frames;
    elapsed += moduleManager().frameTime;
    if (elapsed >= 1.0) {
        lastFps = frames;
        std::cout << "FPS: " << lastFps << '\n';
        elapsed -= 1.0;
        frames = 0;
    }
}
