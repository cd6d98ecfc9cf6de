#include "NamedCommands.h"

#include "CommandTables.h"
#include "game/flow/TitleCard.h"
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
    addCommands(chapter02Commands());
    addCommands(chapter03Commands());
    addCommands(chapter04Commands());
    addCommands(chapter05Commands());
    addCommands(chapter06Commands());
    addCommands(chapter07Commands());
    addCommands(chapter08Commands());
    addCommands(chapter09Commands());
    addCommands(chapter10Commands());
    addCommands(chapter11Commands());
    addCommands(chapter12Commands());
    addCommands(chapter13Commands());
    addCommands(chapter14Commands());
    addCommands(chapter15Commands());
    addCommands(secretCommands());
    registerTitles();
}
