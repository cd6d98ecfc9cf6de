#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter03Commands() {
    return {};
}
