#pragma once

#include <array>
#include <functional>
#include <string>

class Camera;

// State of the game's flow, which is told in scripts: each act ends by running the one that begins
// the next.

inline int levelRunning = 0; ///< 1 while a level is in play: only then is a missing player a death.
inline bool gameStarted = false;           ///< A game has been started from the menu.
inline int cutsOn = 0;                     ///< Whether cut scenes play in full.
inline std::array<int, 10> chapterFlags{}; ///< Scratch of the chapters' commands; not saved.

/// Adds a global script.
void runScript(const std::string& text);

/// Takes the camera over, in the place of the old one.
void useCamera(Camera* camera);

/// Enters a command that replaces the scene. In a chain on an object, which would not outlive it,
/// it runs behind the objects of the step.
void addSceneCommand(const std::string& name, std::function<void()> act);

/// Enters the commands that the flow itself is told in, once in a process.
void registerFlowCommands();
