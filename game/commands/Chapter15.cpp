#include "CommandTables.h"
#include "LampRoom.h"
#include "Language.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Secrets.h"

#include <array>

namespace {

constexpr int thanksLine = 169; // of the language table: who has made the game

/// One of those who are thanked at the end.
ScriptCallback thank(int line) {
    return [line](SceneObject*, So_Addition*) { ringAndShow(text(thanksLine) + " " + text(line)); };
}

void showWayOut(SceneObject*, So_Addition*) {
    ringAndShow(text(378));
}

} // namespace

std::span<const NamedCommand> chapter15Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER15TEXT", verb::title(15)},
        NamedCommand{"CH15CHECKSECRET", verb::script("DELAY 60 CH15CHECKSECRETS")},
        NamedCommand{"CH15CHECKSECRETS", checkNextLamp},
        NamedCommand{"CH15BRAMA1I", verb::script("CH15BRAMA1")},
        NamedCommand{"CH15BRAMA", verb::moveLoopTo("BRAMA", "BRAMADEST", 2.2F)},
        NamedCommand{"CH15BRAMA1",
                     verb::moveLoopTo("BRAMA1", "BRAMADEST1", 5.2F, verb::script("CH15BRAMA2"))},
        NamedCommand{"CH15BRAMA2", verb::moveLoopTo("BRAMA1", "BRAMADEST2", 1.2F)},
        NamedCommand{"CH15TE1", showWayOut},
        NamedCommand{
            "CH15TE2",
            verb::all({thank(171), verb::script("LOCK DELAY 150 SECRET15TALK REMOVESCRIPT")})},
        NamedCommand{"CH15TE3", thank(173)},
        NamedCommand{"CH15TE4", thank(181)},
        NamedCommand{"CH15TE5", thank(172)},
    };
    return table;
}
