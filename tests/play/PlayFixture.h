#pragma once

#include "GameDriver.h"

#include "support/EngineFixture.h"

#include <cstdlib>
#include <functional>
#include <sstream>
#include <string>

/// The engine among the built assets, in a small window: software drawing is bound by pixels. With
/// TOLMERE_PICTURES=DIRECTORY the window has its full size and a picture of every second is kept
/// there; with TOLMERE_SEED=N chance is another one. What the game prints is shown only if the test
/// fails, and of it the end.
class PlayFixture : public EngineFixture {
protected:
    PlayFixture();
    ~PlayFixture() override;

    void SetUp() override;
    void prepareDirectory() override;
    std::unique_ptr<platform::Window> makeInnerWindow() override;
    std::unique_ptr<PaintDevice> makeDevice() override;

    static std::string pathOf(const std::string& chapter) {
        return TOLMERE_MAP_SOURCES "/" + chapter + ".walk";
    }

    using StepWatch = std::function<void(const GameDriver&)>;

    /// Plays a walkthrough of a map, and tells of every step if asked to; a failure names the place
    /// and leaves a picture of it. Returns the hash of the scene at the end.
    std::size_t follow(const std::string& map, const std::string& path, const std::string& picture,
                       StepWatch afterStep = nullptr);
    /// The same for a chapter and its own walkthrough.
    std::size_t play(const std::string& chapter, const std::string& picture,
                     StepWatch afterStep = nullptr) {
        return follow(chapter + ".vkl", pathOf(chapter), picture, std::move(afterStep));
    }

    const char* pictures = std::getenv("TOLMERE_PICTURES");

private:
    std::ostringstream printed;
    std::streambuf* const console;
};
