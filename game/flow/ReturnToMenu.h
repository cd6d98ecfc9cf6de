#pragma once

#include <string>

/// Shows a line of the language table as a tip, for long enough to be read, with the reason behind
/// it, which is printed as well.
void tellFailure(int line, const std::string& reason);

/// Ends whatever is played and fades over to the main menu.
void leaveForMenu();

/// Ends whatever is played, goes to the main menu and tells there why. For what a game cannot go on
/// without; progress and saved games stay as they are.
void returnToMenu(int line, const std::string& reason);
