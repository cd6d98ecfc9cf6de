#include "inputModule/GameMenu.h"

#include "Language.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsModule.h"

static constexpr int pausedLine = 400; // of the language table

void toggleGameMenu() {
    bool& playing = physicsModule().active;
    playing = !playing;
    inputModule().showTip(playing ? std::string() : text(pausedLine), 0.0F, 0.0F, false, false);
}
