#include "NamedCommands.h"

#include "CommandTables.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

void addCommands(std::span<const NamedCommand> commands) {
    for (const NamedCommand& command : commands) {
        addCallback(command.name, command.run);
    }
}

std::vector<std::span<const NamedCommand>> commandTables() {
    return {commonCommands(),    chapter01Commands(), chapter02Commands(), chapter03Commands(),
            chapter04Commands(), chapter05Commands(), chapter06Commands(), chapter07Commands(),
            chapter08Commands(), chapter09Commands(), chapter10Commands(), chapter11Commands(),
            chapter12Commands(), chapter13Commands(), chapter14Commands(), chapter15Commands(),
            secretCommands()};
}

void registerNamedCommands() {
    static bool registered = false;
    if (registered) { // the table outlives the scene manager, of which tests make many
        return;
    }
    registered = true;
    for (const std::span<const NamedCommand> table : commandTables()) {
        addCommands(table);
    }
}
