#include "ModuleManager.h"

#include "Files.h"
#include "Language.h"
#include "ProcessValues.h"
#include "Random.h"
#include "Settings.h"
#include "graphicsModule/GraphicsModule.h" // upward: `niceEffects` is set with the other settings
#include "graphicsModule/TextureStore.h"   // upward: the store lives as long as the manager
#include "platform/Window.h"
#include "soundModule/SoundManager.h" // upward: music goes on while no step runs

#include <algorithm>
#include <iostream>
#include <numeric>

namespace {

constexpr double longestFrame = 0.25;      // seconds; a stall is never charged as more
constexpr std::size_t smoothedFrames = 10; // over which the clock's jitter is spread
constexpr const char* configFile = "config.txt";

/// A setting that is missing or bad is reported, and the value keeps its start.
template <class T>
void readSetting(const char* key, T& value, const std::string& settings) {
    try {
        value = getModifier<T>(key, settings);
    } catch (const std::string& message) {
        std::cout << message << '\n';
    }
}

void runDueUpdates(Module& module) {
    do {
        if (module.period > module.accumulator) {
            return;
        }
        module.accumulator -= module.period;
        module.update();
    } while (module.catchUp);
}

} // namespace

ModuleManager& moduleManager() {
    return service<ModuleManager>();
}

ModuleManager::ModuleManager() : settingsText(readFile(userPrefix + configFile)) {
    frameSamples.reserve(smoothedFrames + 1);
    randomState = 1;
    textureStore();
    applySettings();
    loadLanguage();
}

ModuleManager::~ModuleManager() {
    for (Module* module : modules) {
        delete module;
    }
    delete existingService<TextureStore>();
}

void ModuleManager::applySettings() {
    bool fullscreen = false;
    readSetting("FULLSCREEN", fullscreen, settingsText);
    if (fullscreen) {
        windowMode = WindowMode::fullscreen;
    }
    readSetting("WINDOW_WIDTH", windowWidth, settingsText);
    readSetting("WINDOW_HEIGHT", windowHeight, settingsText);
    readSetting("V_SYNC", swapInterval, settingsText);
    readSetting("MULTISAMPLE", fsaaSamples, settingsText);
    readSetting("MAX_FPS", maxFps, settingsText);
    readSetting("NICE_EFFECTS", niceEffects, settingsText);
}

void ModuleManager::addModule(Module* module) {
    if (std::find(modules.begin(), modules.end(), module) != modules.end()) {
        std::cout << "jest juz taki obiekt Module";
        return;
    }
    modules.push_back(module);
}

void ModuleManager::saveSettings() const {
    try {
        storeFile(settingsText, userPrefix + configFile);
    } catch (const std::string& message) {
        std::cout << message << '\n';
    }
}

void ModuleManager::runLoop() {
    platform::Window& window = platform::window();
    const auto quitKeysDown = [&window] {
        return window.isKeyDown(platform::keyLeftAlt) && window.isKeyDown(platform::keyF4);
    };
    do {
        tick();
    } while (!quitKeysDown() && window.isOpen() && running);
}

void ModuleManager::tick() {
    measureFrameTime();
    for (Module* module : modules) {
        if (module->active) {
            module->accumulator += frameTime;
            runDueUpdates(*module);
        }
    }
    if (SoundManager* sounds = existingService<SoundManager>()) {
        sounds->tick();
    }
}

void ModuleManager::measureFrameTime() {
    const double now = platform::window().time();
    const double measured = std::min(now - lastTime, longestFrame);
    lastTime = now;
    frameSamples.push_back(static_cast<float>(measured));
    if (frameSamples.size() > smoothedFrames) {
        frameSamples.erase(frameSamples.begin());
    }
    frameTime = std::accumulate(frameSamples.begin(), frameSamples.end(), 0.0) /
                static_cast<double>(frameSamples.size());
}
