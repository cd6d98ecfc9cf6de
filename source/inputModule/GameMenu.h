#pragma once

/// Opens the pause menu, with the world standing still and dark behind it, or closes whatever panel
/// is open and goes on. Does not open during a fade. Defined in game/: a fixed call upward, as
/// Escape belongs to the story.
void togglePauseMenu();
