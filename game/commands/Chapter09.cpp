#include "CommandTables.h"
#include "Verbs.h"

#include <array>

std::span<const NamedCommand> chapter09Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER9TEXT", verb::title(9)},
    };
    return table;
}
