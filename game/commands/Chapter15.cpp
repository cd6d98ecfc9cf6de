#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter15Commands() {
    return {};
}
