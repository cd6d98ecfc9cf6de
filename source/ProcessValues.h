#pragma once

#include <string>

// Plain process-wide values that code of every floor reads. The settings fill them at start.

enum class WindowMode { window, fullscreen };

inline int windowWidth = 1280; ///< Window width in pixels; -1 asks for a choice.
inline int windowHeight = 800; ///< Window height in pixels.
inline WindowMode windowMode = WindowMode::window;
inline int swapInterval = 0;             ///< Screen refreshes per buffer swap; 0 is free.
inline int fsaaSamples = 0;              ///< Samples of multisampling; 0 is off.
inline int maxFps = -1;                  ///< Drawn frames a second; below 1 is no limit.
inline float physicsStep = 1.0F / 60.0F; ///< Simulated seconds of one physics update.
inline int physicsRunning = 1;           ///< While 0 updates run but the world stands still.
inline float physicsFraction = 1.0F;     ///< Share of a physics period since the last step.
inline std::string dataPrefix;           ///< In front of every asset path.
inline std::string userPrefix;           ///< In front of `config.txt` and of saves.
