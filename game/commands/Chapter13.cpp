#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter13Commands() {
    return {};
}
