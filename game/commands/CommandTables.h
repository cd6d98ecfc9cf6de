#pragma once

#include "sceneManager/So_Addons/CallbackAdd.h"

#include <span>
#include <vector>

/// A word that scripts call by name.
struct NamedCommand {
    const char* name;
    ScriptCallback run;
};

// The tables, in the order in which they are entered.
std::span<const NamedCommand> commonCommands();
std::span<const NamedCommand> chapter01Commands();
std::span<const NamedCommand> chapter02Commands();
std::span<const NamedCommand> chapter03Commands();
std::span<const NamedCommand> chapter04Commands();
std::span<const NamedCommand> chapter05Commands();
std::span<const NamedCommand> chapter06Commands();
std::span<const NamedCommand> chapter07Commands();
std::span<const NamedCommand> chapter08Commands();
std::span<const NamedCommand> chapter09Commands();
std::span<const NamedCommand> chapter10Commands();
std::span<const NamedCommand> chapter11Commands();
std::span<const NamedCommand> chapter12Commands();
std::span<const NamedCommand> chapter13Commands();
std::span<const NamedCommand> chapter14Commands();
std::span<const NamedCommand> chapter15Commands();
std::span<const NamedCommand> secretCommands();

/// All of the above, in that order.
std::vector<std::span<const NamedCommand>> commandTables();

/// Enters a table into `callbackTable`.
void addCommands(std::span<const NamedCommand> commands);
