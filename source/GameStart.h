#pragma once

/// Sets up the first scene and returns. One of the few calls upward: the start-up makes it once all
/// services stand, and `game/` defines it.
void gameStart();
