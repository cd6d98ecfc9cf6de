#include "MainMenu.h"

#include "game/flow/ChapterFlow.h"
#include "game/flow/GameEntry.h"

void createMenu() {
    gameStarted = false;
    startNewGame();
}
