#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter12Commands() {
    return {};
}
