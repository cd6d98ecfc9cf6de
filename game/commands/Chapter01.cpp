#include "CommandTables.h"
#include "game/flow/TitleCard.h"

#include <array>

/// A cut that maps still name.
static void doNothing(SceneObject*, So_Addition*) {}

static void begin(SceneObject*, So_Addition*) {
    introduceFirstChapter();
}

std::span<const NamedCommand> chapter01Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER1CUT", doNothing},
        NamedCommand{"CHAPTER1", begin},
    };
    return table;
}
