#include "GameStart.h"

#include "ChapterFlow.h"

void gameStart() {
    registerFlowCommands();
    enterMapOrQuit("CHAPTER1.vkl");
}
