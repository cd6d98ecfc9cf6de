#pragma once

/// Opens the in-game menu, or closes it. Defined in game/: a fixed call upward, as Escape belongs
/// to the story.
void toggleGameMenu();
