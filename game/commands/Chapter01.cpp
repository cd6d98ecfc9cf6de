#include "CommandTables.h"

#include <array>

/// A cut that maps still name.
static void doNothing(SceneObject*, So_Addition*) {}

std::span<const NamedCommand> chapter01Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER1CUT", doNothing},
    };
    return table;
}
