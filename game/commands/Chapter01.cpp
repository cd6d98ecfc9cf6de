#include "CommandTables.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/TitleCard.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"

#include <array>

// The first rooms: three who sleep behind bars, and a weight whose fall takes the floor along.

namespace {

using namespace verb;

constexpr std::array sleepers{"ENEMY1", "ENEMY2", "ENEMY3"};
constexpr int pause = 20; // steps between two lines of a monologue
constexpr int shortLine = 100;
constexpr int longLine = 160;

/// The lines from the first to the last, with pauses between them.
std::vector<Speech> monologue(const std::vector<int>& lines, int steps) {
    std::vector<Speech> said;
    for (const int line : lines) {
        said.push_back({line, steps});
        said.push_back({0, pause});
    }
    return said;
}

ScriptCallback openEyes(const char* name) {
    return [name](SceneObject*, So_Addition*) {
        if (EvilPlayer* monster = EvilPlayer::of(sceneManager().getSceneObject(name))) {
            monster->lightEyes();
        }
    };
}

/// They are through with sleeping. One of them says so.
void letHunt(SceneObject*, So_Addition*) {
    bool growled = false;
    for (const char* name : sleepers) {
        EvilPlayer* monster = EvilPlayer::of(sceneManager().getSceneObject(name));
        if (monster == nullptr) {
            continue;
        }
        monster->state = EvilState::hunter;
        if (!growled) {
            monster->growl();
            growled = true;
        }
    }
}

/// The long way past the sleepers the first time, the short one from then on.
void passSleepers(SceneObject*, So_Addition*) {
    runScript(
        cutsOn != 0
            ? "LOCK LOCKMOVEMENT SOUND whisp.wav DELAY 100 TALK21 DELAY 30 DELAYORKEY 100 TALK22 "
              "DELAY 30 DELAYORKEY 240 TALK23 DELAY 30 DELAYORKEY 240 TALK24 DELAY 30 DELAYORKEY "
              "190 TALK25 DELAY 30 DELAYORKEY 310 SOUND kick2.wav CH1ENEMY1 TALK26 DELAY 50 SOUND "
              "kick1.wav CH1ENEMY3 DELAY 150 SOUND kick.wav CH1ENEMY2 DELAY 50  UNLOCKMOVEMENT "
              "TALK27 DELAY 50 CH1UNEN SOUND anxiety8.wav CUTOFF REMOVESCRIPT"
            : "LOCK CH1UNEN TALK27 SOUND anxiety8.wav REMOVESCRIPT");
}

/// Whoever has got away from them is left alone.
void removeSleepers(SceneObject* owner, So_Addition* link) {
    for (const char* name : sleepers) {
        verb::remove(name)(owner, link);
    }
}

} // namespace

std::span<const NamedCommand> chapter01Commands() {
    static const std::array table{
        NamedCommand{"TALK1", talk(monologue({10, 11, 12, 13, 14, 15, 16}, longLine))},
        NamedCommand{"TALK2", talk(monologue({19, 20, 22, 23}, longLine))},
        NamedCommand{"TALK21", interrupt({{24, shortLine}})},
        NamedCommand{"TALK22", interrupt(monologue({25, 26}, shortLine))},
        NamedCommand{"TALK23", interrupt(monologue({27, 28}, shortLine))},
        NamedCommand{"TALK24", interrupt(monologue({30, 31}, shortLine))},
        NamedCommand{"TALK25", interrupt(monologue({32, 33, 34}, shortLine))},
        NamedCommand{"TALK26", interrupt({{35, shortLine}})},
        NamedCommand{"TALK27", interrupt({{36, longLine}})},
        NamedCommand{"CH1OBSCUR", unhide("OBSCUR")},
        NamedCommand{"CH1OBSCURO", unhide("OBSCURO")},
        NamedCommand{"CH1ENEMY1", openEyes(sleepers[0])},
        NamedCommand{"CH1ENEMY2", openEyes(sleepers[1])},
        NamedCommand{"CH1ENEMY3", openEyes(sleepers[2])},
        NamedCommand{"CH1UNEN", letHunt},
        NamedCommand{"CH1SC", passSleepers},
        NamedCommand{"CH1ER", removeSleepers},
        NamedCommand{
            "CH1END",
            all({release("ZAP"),
                 script("LOCK LOCKMOVEMENT SOUND kick.wav SOUND mysteryloop1.wav DELAY 300 "
                        "FADEALLTOWHITE DELAY 300 CH1KO DELAY 3000 REMOVESCRIPT")})},
        NamedCommand{"CHAPTER1CUT",
                     [](SceneObject*, So_Addition*) {}}, // a cut that maps still name
        NamedCommand{"CHAPTER1", [](SceneObject*, So_Addition*) { introduceFirstChapter(); }},
    };
    return table;
}
