#include "PlayFixture.h"

#include "Walkthrough.h"

#include "support/HeldWindow.h"

#include "Files.h"
#include "Random.h"
#include "graphicsModule/GlDevice.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

PlayFixture::PlayFixture() : console(std::cout.rdbuf(printed.rdbuf())) {}

PlayFixture::~PlayFixture() {
    constexpr std::size_t shown = 2000; // characters
    std::cout.rdbuf(console);
    if (HasFailure()) {
        const std::string all = printed.str();
        std::cout << "The last that was printed:\n"
                  << all.substr(all.size() - std::min(all.size(), shown)) << '\n';
    }
}

void PlayFixture::SetUp() {
    EngineFixture::SetUp();
    if (const char* seed = std::getenv("TOLMERE_SEED")) {
        randomState = static_cast<std::uint32_t>(std::atoi(seed));
    }
}

void PlayFixture::prepareDirectory() {
    EngineFixture::prepareDirectory();
    fs::remove_all("data");
    fs::create_directory_symlink(TOLMERE_GAME_DIRECTORY "/data", "data");
    fs::remove("lang_eng.txt");
    fs::copy_file(TOLMERE_GAME_DIRECTORY "/lang_eng.txt", "lang_eng.txt");
    fs::copy(TOLMERE_GAME_DIRECTORY "/maps", "maps",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    if (pictures != nullptr) {
        return;
    }
    // Software drawing is the dearest part of these tests: it takes four fifths of their time even
    // in a window as small as this.
    std::string settings = readFile("config.txt");
    settings.replace(settings.find("WINDOW_WIDTH 1280"), 17, "WINDOW_WIDTH 410");
    settings.replace(settings.find("WINDOW_HEIGHT 800"), 17, "WINDOW_HEIGHT 256");
    writeFile(settings, "config.txt");
}

std::unique_ptr<platform::Window> PlayFixture::makeInnerWindow() {
    return std::make_unique<HeldWindow>();
}

std::unique_ptr<PaintDevice> PlayFixture::makeDevice() {
    return std::make_unique<GlDevice>();
}

std::size_t PlayFixture::follow(const std::string& map, const std::string& path,
                                const std::string& picture, StepWatch afterStep) {
    GameDriver game(*window, map);
    game.afterStep = std::move(afterStep);
    if (pictures != nullptr) {
        game.keepPictures(pictures, 60);
    }
    try {
        const Walkthrough walkthrough(path);
        walkthrough.play(game);
    } catch (const std::string& reason) {
        game.screenshot(startDirectory + "/" + picture);
        ADD_FAILURE() << reason << "\nseen in " << startDirectory << "/" << picture;
    }
    return GameDriver::sceneHash();
}
