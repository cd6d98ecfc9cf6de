#pragma once

// The ways from the main menu into a game. Once one of them was taken, the others and the same one
// do nothing until the menu is built again, so that a second click during the fade is harmless.

struct Level;

/// Chapter 1 from its intro.
void startNewGame();
/// The latest saved game.
void continueGame();
/// The intro of the chapter, 1 to 15.
void startChapter(int number);

/// Not from the menu: straight into a level, with control at once, for those who build levels.
/// @throws std::string if its map cannot be read
void startInLevel(const Level& level);
