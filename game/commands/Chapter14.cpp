#include "CommandTables.h"

#include <array>

std::span<const NamedCommand> chapter14Commands() {
    return {};
}
