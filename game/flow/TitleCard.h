#pragma once

// The name of a chapter, on the screen for its first five seconds. Nothing happens without a
// player.

void openTitleCard(int chapter);
void closeTitleCard();

/// The title of the first chapter, what the protagonist says as it wakes up, and then the control
/// of it with a tip how.
void introduceFirstChapter();

/// Opens the title for as long as it stays.
void introduceChapter(int chapter);
