#pragma once

/// The main menu: the scene of `maps/MENU.vkl` with the logo in it, its camera and music, and the
/// panels. A map that cannot be read is told on standard output and ends the program.
void createMenu();

/// Builds the main panel anew and, if a side panel is open, leaves the options open: for a change
/// of language or of a setting.
void rebuildMenus();
