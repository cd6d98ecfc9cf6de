#include "GameEntry.h"

#include "ChapterFlow.h"
#include "Levels.h"

#include <string>

namespace {

void beginGame() {
    gameStarted = true;
    cutsOn = 1;
    runScript("CHECKINGFORPLAYERDEATH");
}

/// Zooms into the menu's scene and goes over to the act through white.
void goTo(const std::string& act) {
    if (!gameStarted) {
        beginGame();
        runScript("ZOOMIN LOCK SOUND anxiety7.wav -V 60 DELAY 50 FADEALLTOWHITE DELAY 150 "
                  "REMOVEALLGUI " +
                  act + " REMOVESCRIPT");
    }
}

} // namespace

void startNewGame() {
    goTo("CH1REF");
}

void continueGame() {
    goTo("FADENORMAL LOADLASTSAVE");
}

void startChapter(int number) {
    if (number == 1) {
        startNewGame();
    } else if (number > 1 && number <= chapterCount) {
        goTo("FADENORMAL CHAPTER" + std::to_string(number) + "INTRO");
    }
}

void startInLevel(const Level& level) {
    enterLevel(level);
    beginGame();
}
