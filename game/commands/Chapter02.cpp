#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter02Commands() {
    return {};
}
