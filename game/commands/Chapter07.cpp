#include "CommandTables.h"
#include "sceneManager/Player.h"

#include <array>

/// The strength that lets a character push the machine's blocks.
static void strengthen(SceneObject* owner, So_Addition*) {
    if (Player* character = owner != nullptr ? owner->asPlayer() : nullptr) {
        character->statistics.push = 40.0F;
        character->statistics.speed = 400.0F;
    }
}

std::span<const NamedCommand> chapter07Commands() {
    static const std::array table{
        NamedCommand{"CH7STRONG", strengthen},
    };
    return table;
}
