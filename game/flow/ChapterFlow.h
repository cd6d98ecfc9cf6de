#pragma once

#include <array>
#include <string>

// State of the game's flow, and the way into a level.

inline int levelRunning = 0; ///< 1 while a level is in play: only then is a missing player a death.
inline bool gameStarted = false;           ///< A game has been started from the menu.
inline int cutsOn = 0;                     ///< Whether cut scenes play in full.
inline std::array<int, 10> chapterFlags{}; ///< Scratch of the chapters' commands; not saved.

/// Adds a global script.
void runScript(const std::string& text);

/// Enters the commands that the flow itself is told in, once in a process.
void registerFlowCommands();

/// Replaces the scene by the map of that name in the maps directory, gives the user the protagonist
/// with full health and a camera that follows it, and watches for its death, after which the same
/// map is entered again.
/// @throws std::string if the map cannot be read, in which case the scene stays, or if it has no
/// place for the protagonist
void enterMap(const std::string& fileName);

/// Enters the map, or says why not and ends the program.
void enterMapOrQuit(const std::string& fileName);
