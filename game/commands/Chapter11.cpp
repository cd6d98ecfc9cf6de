#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter11Commands() {
    return {};
}
