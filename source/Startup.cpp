#include "Startup.h"

#include "FpsCounter.h"
#include "GameStart.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "Steam.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Painter.h"
#include "inputModule/GameInput.h"
#include "inputModule/InputModule.h"
#include "inputModule/InputObject.h"
#include "physicsModule/PhysicsModule.h"
#include "platform/Directory.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

// The start-up joins all floors; it is the one place of the engine core that may include any of
// them.

namespace {

constexpr WindowSize usualSize{1280, 800};
constexpr int smallestSide = 513;            // the light map is drawn in 512 by 512 pixels
constexpr double physicsPeriod = 1.0 / 60.0; // seconds; the game's durations are counted in these

void startSteam() {
    if (!steam().init()) {
        std::cout << "SteamAPI_Init() fail\n";
    }
    if (!steam().hasUserStats() || !steam().hasUser()) {
        std::cout << "SteamUserStats fail\n";
    }
}

void createManager() {
    userPrefix.clear();
    std::cout << dataPrefix;
    moduleManager();
}

void makeSaveFolder() {
    const std::string folder = userPrefix + "save";
    if (!platform::makeDirectory(folder)) {
        std::cout << folder << " - cannot be made; games cannot be saved\n";
    }
}

/// The choice is kept in the settings, so that it is made once. Without a mode to choose from,
/// another start may have better luck.
void chooseSize() {
    if (windowWidth != -1) {
        return;
    }
    const auto size = chooseWindowSize(platform::window().videoModes());
    windowWidth = size.value_or(usualSize).width;
    windowHeight = size.value_or(usualSize).height;
    if (size) {
        setModifier("WINDOW_WIDTH", windowWidth, moduleManager().settingsText);
        setModifier("WINDOW_HEIGHT", windowHeight, moduleManager().settingsText);
        moduleManager().saveSettings();
    }
}

/// A smaller window could not hold the light map. The setting stays as the user wrote it.
void refuseSmallSize() {
    if (windowWidth < lightMapSize || windowHeight < lightMapSize) {
        std::cout << "a window of " << windowWidth << " by " << windowHeight
                  << " is too small; it opens with " << usualSize.width << " by "
                  << usualSize.height << '\n';
        windowWidth = usualSize.width;
        windowHeight = usualSize.height;
    }
}

void openWindow() {
    platform::Window& window = platform::window();
    chooseSize();
    refuseSmallSize();
    const bool fullscreen = windowMode == WindowMode::fullscreen;
    if (!window.open({windowWidth, windowHeight, fullscreen, fsaaSamples, lightMapSize})) {
        std::cerr << "no display: " << window.failure() << std::endl;
        std::getchar(); // keeps a console that opened with the program readable
        std::exit(-1);
    }
    window.setTitle("Tolmere");
    window.setSwapInterval(swapInterval);
}

void createModules() {
    ModuleManager& manager = moduleManager();
    manager.addModule(&fpsCounter());
    manager.addModule(&inputModule());
    manager.addModule(&physicsModule());
    manager.addModule(&graphicsModule());
}

/// Without these settings the physics runs lazily, in steps of a 60th of a second.
void setPhysicsPace() {
    const std::string& settings = moduleManager().settingsText;
    try {
        physicsModule().catchUp = !getModifier<bool>("LAZY_PHYSICS", settings);
    } catch (const std::string&) {
        physicsModule().catchUp = false;
    }
    physicsModule().period = physicsPeriod;
    try {
        const int stepsPerSecond = getModifier<int>("PHYSICS_SPEED", settings);
        if (stepsPerSecond > 0) {
            physicsStep = 1.0F / static_cast<float>(stepsPerSecond);
        }
    } catch (const std::string&) {
        return;
    }
}

void installEvents() {
    platform::WindowEvents events;
    events.key = [](int key, int action) { inputModule().keyEvent(key, action); };
    events.mouseButton = [](int button, int action) { inputModule().mouseEvent(button, action); };
    events.mouseMoved = [] {
        inputModule().mouseEvent(inputModule().lastButton, mouseAction::moved);
    };
    events.wheel = [](int position) { inputModule().wheelEvent(position); };
    events.resized = windowResized;
    platform::window().setEvents(std::move(events));
}

void limitDrawing() {
    if (maxFps > 0) {
        graphicsModule().catchUp = false;
        graphicsModule().period = 1.0 / maxFps;
    }
}

void keepSettings() {
    setModifier("BRIGHTNESS", brightness, moduleManager().settingsText);
    moduleManager().saveSettings();
}

} // namespace

std::optional<WindowSize> chooseWindowSize(std::span<const platform::VideoMode> modes) {
    const auto qualifies = [](const platform::VideoMode& mode) {
        const bool trueColour = mode.redBits == 8 || mode.greenBits == 8 || mode.blueBits == 8;
        return trueColour && mode.width >= smallestSide && mode.height >= smallestSide;
    };
    const auto found = std::find_if(modes.rbegin(), modes.rend(), qualifies);
    if (found == modes.rend()) {
        return std::nullopt;
    }
    return WindowSize{found->width, found->height};
}

void startUp() {
    startSteam();
    createManager();
    makeSaveFolder();
    openWindow();
    createServices();
    gameStart();
}

void createServices() {
    createModules();
    setPhysicsPace();
    installEvents();
    limitDrawing();
    soundManager();
    inputModule().game = new GameInput();
}

// The window closes after the services have gone: they release their textures in its context.
void shutDown() {
    keepSettings();
    deleteServices();
    platform::setWindow(nullptr);
    steam().shutdown();
}

void deleteServices() {
    platform::window().setEvents({});
    delete existingService<SceneManager>();
    delete existingService<SoundManager>();
    delete existingService<ModuleManager>();
    setPainter(nullptr);
}

void windowResized(int width, int height) {
    if (width != 0) {
        windowWidth = width;
    }
    if (height != 0) {
        windowHeight = height;
    }
    graphicsModule().active = width != 0 || height != 0;
    std::cout << width << ' ' << height;

    int currentWidth = 0;
    int currentHeight = 0;
    platform::window().getSize(currentWidth, currentHeight);
    if (currentWidth != windowWidth || currentHeight != windowHeight) {
        platform::window().setSize(windowWidth, windowHeight);
    }
    graphicsModule().setViewport();
}
