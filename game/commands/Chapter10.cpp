#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter10Commands() {
    return {};
}
