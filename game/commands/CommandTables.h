#pragma once

#include <span>

class SceneObject;
class So_Addition;

/// A word that scripts call by name. `owner` is the object whose chain fired, null in a global
/// script; `link` is the link that fired.
struct NamedCommand {
    const char* name;
    void (*run)(SceneObject* owner, So_Addition* link);
};

// The tables, in the order in which they are entered.
std::span<const NamedCommand> commonCommands();
std::span<const NamedCommand> chapter01Commands();
std::span<const NamedCommand> chapter07Commands();

/// Enters a table into `callbackTable`.
void addCommands(std::span<const NamedCommand> commands);
