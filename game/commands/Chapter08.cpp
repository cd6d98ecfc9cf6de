#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter08Commands() {
    return {};
}
