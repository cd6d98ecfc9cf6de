#pragma once

#include <string>
#include <vector>

inline std::string languageFile;               ///< Bare name of the file that the table came from.
inline std::vector<std::string> languageTable; ///< The lines, in the codes of the game's font.

/// Reads the setting `LANGUAGE_FILE` and refills the table from that file. Without a file name the
/// table stays; a file that cannot be opened leaves it empty.
void loadLanguage();

/// Line n, counted from 1; a single blank when there is no such line. Lines 18 and 29 have a second
/// wording for a player with a joystick.
std::string text(int n);
