#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter05Commands() {
    return {};
}
