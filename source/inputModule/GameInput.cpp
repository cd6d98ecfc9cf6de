#include "GameInput.h"

#include "GameMenu.h"
#include "InputModule.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"

// A fixed call upward: the root of the input steers the protagonist.
#include "sceneManager/EqItem.h"
#include "sceneManager/Equipment.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"

namespace {

void setKey(Player& player, std::uint32_t bit, int action) {
    if (action == platform::pressed) {
        player.keys |= bit;
    } else if (action == platform::released) {
        player.keys &= ~bit;
    }
}

/// What a key means; 0 for nothing. The user's own letters count before the fixed keys of a row,
/// and the rows in this order, so that a letter bound twice has its first meaning only.
std::uint32_t bitOf(int key) {
    const InputModule& input = inputModule();
    if (key == input.keyUp || key == platform::keyUp || key == platform::keySpace) {
        return playerKey::up;
    }
    if (key == input.keyLeft || key == platform::keyLeft) {
        return playerKey::left;
    }
    if (key == input.keyRight || key == platform::keyRight) {
        return playerKey::right;
    }
    if (key == input.keyDown || key == platform::keyDown) {
        return playerKey::down;
    }
    return key == platform::keyLeftShift ? playerKey::extra : 0;
}

void useHands(Player& player, int button, int action) {
    EqItem* item = player.equipment != nullptr ? player.equipment->current : nullptr;
    const bool primary = button == platform::leftMouseButton;
    if (item != nullptr) {
        if (action == platform::pressed) {
            primary ? item->primaryDown() : item->secondaryDown();
        } else {
            primary ? item->primaryUp() : item->secondaryUp();
        }
    }
    setKey(player, primary ? playerKey::primary : playerKey::secondary, action);
}

} // namespace

void GameInput::mouse(float /*x*/, float /*y*/, int button, int action) {
    takeFocus();
    double worldX = 0.0;
    double worldY = 0.0;
    graphicsModule().camera->getMouseWorld(worldX, worldY);
    Player* player = sceneManager().player;
    if (player == nullptr) {
        return;
    }
    player->aimPoint = btVector3(static_cast<float>(worldX), static_cast<float>(worldY), 0);
    const bool isHand = button == platform::leftMouseButton || button == platform::rightMouseButton;
    if (isHand && (action == platform::pressed || action == platform::released)) {
        useHands(*player, button, action);
    }
}

void GameInput::key(int key, int action) {
    Player* player = sceneManager().player;
    if (player == nullptr) {
        return;
    }
    if (key == platform::keyEscape && action == platform::pressed) {
        togglePauseMenu();
    } else if (movementLocked == 1) {
        player->stopKeys();
    } else {
        setKey(*player, bitOf(key), action);
    }
}
