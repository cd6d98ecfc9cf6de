#include "TitleCard.h"

#include "CentredText.h"
#include "ChapterFlow.h"
#include "ChapterTable.h"
#include "Language.h"
#include "inputModule/InputModule.h"
#include "platform/Window.h"
#include "sceneManager/SceneManager.h"

#include <algorithm>
#include <string>

namespace {

InputFrame* titleCard = nullptr; // not owned; stale when all frames were closed

} // namespace

void openTitleCard(int chapter) {
    closeTitleCard();
    if (sceneManager().player != nullptr) {
        titleCard = openCentredText(text(chapterRow(chapter).title), 0.0F);
    }
}

void closeTitleCard() {
    const auto& frames = inputModule().getFrames();
    if (sceneManager().player != nullptr &&
        std::find(frames.begin(), frames.end(), titleCard) != frames.end()) {
        inputModule().removeFrame(titleCard);
        titleCard = nullptr;
    }
}

void introduceChapter(int chapter) {
    if (sceneManager().player != nullptr) {
        openTitleCard(chapter);
        runScript("LOCK DELAY 300 ENDCHAPTER REMOVESCRIPT");
    }
}

void introduceFirstChapter() {
    if (sceneManager().player == nullptr) {
        return;
    }
    openTitleCard(1);
    const std::string controls = platform::window().isJoystickPresent() ? "392" : "17";
    runScript("LOCK DELAY 300 ENDCHAPTER DELAY 50 TALK1 DELAY 1500 UNLOCKMOVEMENT DELAY 200 TIP " +
              controls + " REMOVESCRIPT");
}
