#pragma once

/// The name of the game in the menu's scene, lit by a lamp of its own and giving off sparks.
void addLogo();
