#pragma once

#include "sceneManager/So_Addons/CallbackAdd.h"

#include <span>

/// A word that scripts call by name.
struct NamedCommand {
    const char* name;
    ScriptCallback run;
};

// The tables, in the order in which they are entered.
std::span<const NamedCommand> commonCommands();
std::span<const NamedCommand> chapter01Commands();
std::span<const NamedCommand> chapter07Commands();

/// Enters a table into `callbackTable`.
void addCommands(std::span<const NamedCommand> commands);
