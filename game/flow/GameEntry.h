#pragma once

// The ways from the main menu into a game. Once one of them was taken, the others and the same one
// do nothing until the menu is built again, so that a second click during the fade is harmless.

/// Chapter 1 from its intro.
void startNewGame();
/// The latest saved game.
void continueGame();
/// The intro of the chapter, 1 to 15.
void startChapter(int number);
