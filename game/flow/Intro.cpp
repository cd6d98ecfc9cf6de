#include "Intro.h"

#include "ChapterFlow.h"
#include "ChapterTable.h"
#include "IntroLines.h"
#include "IntroMovers.h"
#include "IntroStage.h"
#include "graphicsModule/FreeCamera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LockedCamera.h"
#include "sceneManager/SceneManager.h"

#include <sstream>

namespace {

/// The words of a chapter's pace as those of a script, each with a blank behind it.
std::string wordsOf(const std::string& pace, int chapter) {
    std::string words;
    std::istringstream stream(pace);
    for (std::string beat; stream >> beat;) {
        if (beat == "~") {
            words += "DELAY 10 DELAYORKEY 190 "; // the first tenths of a second cannot be cut
        } else if (beat.front() == 'T') {
            words += "CH" + std::to_string(chapter) + beat + " ";
        } else {
            words += "DELAY " + beat + " ";
        }
    }
    return words;
}

void placeCamera(const ChapterRow& row) {
    if (row.followsBackdrop) {
        useCamera(new LockedCamera(introBackdrop()));
        graphicsModule().camera->setZoom(row.zoom);
    } else {
        useCamera(new FreeCamera(0.0F, 0.0F, row.zoom));
    }
}

void beginIntro(int chapter) {
    const ChapterRow& row = chapterRow(chapter);
    levelRunning = 0; // nobody is there to play, and nobody dies of it
    sceneManager().clearScene();
    graphicsModule().ambient = {row.ambient, row.ambient, row.ambient};
    graphicsModule().ambientTarget = graphicsModule().ambient;
    buildStage(row.stage);
    placeCamera(row);
    if (*row.stage.mover != '\0') {
        runScript(row.stage.mover);
    }
    runScript(introScript(chapter));
}

} // namespace

std::string introScript(int chapter) {
    const ChapterRow& row = chapterRow(chapter);
    const std::string head = row.stage.head;
    const std::string level =
        chapter == 1 ? "INEWGAME1" : "FADENORMAL CHAPTER" + std::to_string(chapter);
    return (head.empty() ? head : head + " ") + "LOCK FADENORMAL " + wordsOf(row.pace, chapter) +
           "FADEALLTOWHITE DELAY 200 TIP -1 " + level + " REMOVESCRIPT";
}

void registerIntros() {
    registerIntroLines();
    registerIntroMovers();
    addSceneCommand("CH1REF", [] { beginIntro(1); });
    for (int chapter = 2; chapter <= chapterCount; ++chapter) {
        addSceneCommand("CHAPTER" + std::to_string(chapter) + "INTRO",
                        [chapter] { beginIntro(chapter); });
    }
}
