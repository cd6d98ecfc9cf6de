#include "NamedCommands.h"

#include "CommandTables.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

void addCommands(std::span<const NamedCommand> commands) {
    for (const NamedCommand& command : commands) {
        addCallback(command.name, command.run);
    }
}

void registerNamedCommands() {
    static bool registered = false;
    if (registered) { // the table outlives the scene manager, of which tests make many
        return;
    }
    registered = true;
    addCommands(commonCommands());
    addCommands(chapter01Commands());
    addCommands(chapter07Commands());
}
