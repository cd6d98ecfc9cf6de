#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter09Commands() {
    return {};
}
