#include "CommandTables.h"
#include "Verbs.h"

#include <array>

std::span<const NamedCommand> chapter11Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER11TEXT", verb::title(11)},
    };
    return table;
}
