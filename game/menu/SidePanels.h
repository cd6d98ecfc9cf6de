#pragma once

// The panels that stand at the left of the main menu, one at a time: each takes the place of the
// one before. Their texts are lines of the language table.

void openNewsPanel();
void openChapterPanel();
void openOptionsPanel();
void openControlsPanel();
void openInformationPanel();
