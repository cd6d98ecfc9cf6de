#pragma once

#include "Module.h"
#include "Service.h"

#include <string>
#include <vector>

/// The first object of the process: the scheduler of modules, the settings text and the loop's
/// clock. Owns the modules that were added, and the `TextureStore`, and deletes both.
class ModuleManager {
    ServiceSlot<ModuleManager> slot{this};

public:
    /// Reads `config.txt`, seeds the random generator, creates the `TextureStore`, applies the
    /// settings and loads the language table. Raises the reader's text if there is no `config.txt`.
    ModuleManager();
    ~ModuleManager();
    ModuleManager(const ModuleManager&) = delete;
    ModuleManager& operator=(const ModuleManager&) = delete;

    /// Appends a module, which is owned from then on; order of adding is order of update. Says
    /// "jest juz taki obiekt Module" and changes nothing if it is there already.
    void addModule(Module* module);

    /// Writes `settingsText` to `config.txt`. A failure is printed, not raised: the old file stays.
    void saveSettings() const;

    /// Runs ticks until the window closes, left Alt and F4 are down, or `running` is false.
    void runLoop();

    /// Charges the time since the previous tick to every active module and runs those that are due;
    /// then the music takes its turn.
    void tick();

    bool running = true;             ///< The loop goes on while this is true.
    double lastTime = 0.0;           ///< Clock at the previous tick, seconds.
    double frameTime = 0.0;          ///< Seconds charged in this tick, clamped and smoothed.
    std::vector<float> frameSamples; ///< The latest clamped tick times, oldest first, seconds.
    std::string settingsText;        ///< The whole of `config.txt`, byte for byte.

private:
    void applySettings();
    void measureFrameTime();

    std::vector<Module*> modules; // owned
};

ModuleManager& moduleManager();
