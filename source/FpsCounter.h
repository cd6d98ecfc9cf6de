#pragma once

#include "Module.h"
#include "Service.h"

/// Counts the ticks of the loop and prints their number once a second. Deleted by `ModuleManager`.
class FpsCounter : public Module {
    ServiceSlot<FpsCounter> slot{this};

public:
    void update() override;

    int frames = 0;       ///< Ticks in the present second.
    double elapsed = 0.0; ///< Seconds in the present second.
    int lastFps = 0;      ///< The latest full count.
};

FpsCounter& fpsCounter();
