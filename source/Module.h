#pragma once

/// A per-frame service that the loop of `ModuleManager` schedules.
class Module {
public:
    virtual ~Module() = default;

    /// One turn of the module's work. The scheduler decides how often.
    virtual void update() = 0;

    double accumulator = 0.0; ///< Seconds owed to this module.
    double period = -1.0;     ///< Seconds between updates; negative means once a tick.
    bool active = true;       ///< While false the module is charged no time and is not updated.
    bool catchUp = false;     ///< Repeat `update` until less than a period is owed.
};
