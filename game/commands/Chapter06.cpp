#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter06Commands() {
    return {};
}
