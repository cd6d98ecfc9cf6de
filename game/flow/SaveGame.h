#pragma once

#include <ctime>
#include <string>

// Saved games: the scene as a map, in a file of its own each time, in the folder `save`. The
// settings name the latest. No file is ever deleted.

/// The bare name of a file that is saved at that local time.
std::string saveName(const std::tm& time);

/// Saves the running level under the present time. Without a player nothing happens; a save that
/// fails is told to the user, and the latest one stays what it was.
void saveGame();
/// The same with a flicker of the screen, during which the world stands still.
void saveWithFlicker();
/// Saves the running level under that bare name, as the latest. What the protagonist holds is laid
/// down meanwhile. There must be a player.
/// @throws std::string if the file cannot be written, with nothing changed
void saveGameAs(const std::string& name);

/// Goes on from the latest save; with none, from the beginning of the level that is played. If
/// neither can be read, the user is told so in the main menu.
void loadLastSave();
/// Whether there is a latest save whose text can be read. It stays in memory for the load.
bool saveIsUsable();
