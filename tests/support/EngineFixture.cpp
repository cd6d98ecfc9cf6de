#include "EngineFixture.h"

#include "Language.h"
#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Random.h"
#include "Startup.h"
#include "Steam.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Painter.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"

#include <filesystem>

namespace {

constexpr double frameSeconds = 1.0 / 60.0;
constexpr int languageLines = 440; // some above the last line that the game has a number for

constexpr const char* settings = "FULLSCREEN 0\r\n"
                                 "WINDOW_WIDTH 1280\r\n"
                                 "WINDOW_HEIGHT 800\r\n"
                                 "V_SYNC 0\r\n"
                                 "MULTISAMPLE 0\r\n"
                                 "MAX_FPS -1\r\n"
                                 "NICE_EFFECTS 1\r\n"
                                 "LANGUAGE_FILE lang_eng.txt\r\n"
                                 "LAZY_PHYSICS 0\r\n"
                                 "PHYSICS_SPEED 60\r\n"
                                 "RENDER_MODE 0\r\n"
                                 "DEBUG_DRAW 0\r\n"
                                 "BRIGHTNESS 0\r\n"
                                 "KEYUP W\r\n"
                                 "KEYDOWN S\r\n"
                                 "KEYLEFT A\r\n"
                                 "KEYRIGHT D\r\n"
                                 "ACTUAL_SAVE \r\n"
                                 "SECRETS 000000000000000\r\n"
                                 "DEATHS 0\r\n"
                                 "MAGIC_NUMBER 000000000000000\r\n";

std::string numberedLines() {
    std::string lines;
    for (int n = 1; n <= languageLines; ++n) {
        lines += "line " + std::to_string(n) + "\r\n";
    }
    return lines;
}

void resetProcessValues() {
    windowWidth = 1280;
    windowHeight = 800;
    windowMode = WindowMode::window;
    swapInterval = 0;
    fsaaSamples = 0;
    maxFps = -1;
    physicsStep = 1.0F / 60.0F;
    physicsRunning = 1;
    physicsFraction = 1.0F;
    dataPrefix.clear();
    userPrefix.clear();
    randomState = 1;
    languageFile.clear();
    languageTable.clear();
    debugDraw = false;
    brightness = 0.0F;
    niceEffects = 1;
    letterboxX = 0;
    letterboxY = 0;
    renderMode = 0;
}

} // namespace

EngineFixture::EngineFixture() : startDirectory(std::filesystem::current_path().string()) {}

EngineFixture::~EngineFixture() = default;

void EngineFixture::SetUp() {
    resetProcessValues();
    std::filesystem::current_path(directory.path());
    prepareDirectory();
    auto scripted = std::make_unique<ScriptedWindow>(makeInnerWindow());
    window = scripted.get();
    platform::setWindow(std::move(scripted));
    moduleManager();
    ASSERT_TRUE(window->open({windowWidth, windowHeight, false, 0})) << window->failure();
    setPainter(std::make_unique<Painter>(makeDevice()));
    setMixer(makeMixer());
    createServices();
    sceneManager();
}

void EngineFixture::TearDown() {
    deleteServices();
    setMixer(nullptr);
    platform::setWindow(nullptr);
    setSteam(nullptr);
    resetProcessValues();
    std::filesystem::current_path(startDirectory);
}

void EngineFixture::step(int count) {
    for (int i = 0; i < count; ++i) {
        physicsModule().update();
    }
}

void EngineFixture::frame(int count) {
    for (int i = 0; i < count; ++i) {
        window->advance(frameSeconds);
        moduleManager().tick();
    }
}

void EngineFixture::prepareDirectory() {
    for (const char* folder : {"data", "maps", "save", "sound", "music"}) {
        std::filesystem::create_directory(folder);
    }
    directory.write("config.txt", settings);
    directory.write("lang_eng.txt", numberedLines());
    directory.write("sound/click.wav", "");
    directory.write("music/theme.ogg", "");
}

void EngineFixture::writeSounds(std::initializer_list<const char*> names) const {
    for (const std::string name : names) {
        directory.write("sound/" + name + ".wav", "");
    }
}

std::unique_ptr<PaintDevice> EngineFixture::makeDevice() {
    auto recorder = std::make_unique<RecordingDevice>();
    device = recorder.get();
    return recorder;
}

std::unique_ptr<Mixer> EngineFixture::makeMixer() {
    auto silent = std::make_unique<SilentMixer>();
    mixer = silent.get();
    return silent;
}
