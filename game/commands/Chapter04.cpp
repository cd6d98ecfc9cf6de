#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter04Commands() {
    return {};
}
