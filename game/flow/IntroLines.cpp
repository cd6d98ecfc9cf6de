#include "IntroLines.h"

#include "ChapterFlow.h"
#include "ChapterTable.h"
#include "IntroStage.h"
#include "Language.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/ParticleEmiter.h"
#include "inputModule/InputModule.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace {

constexpr float lineShift = -500.0F; // from the top of the screen, logical units
constexpr float ghostRate = 2.36F;   // particles a step
constexpr int wakingLines = 11;      // that the last intro shares with the first

/// How a line of the first intro has the backdrop spray; what is not told is as at its beginning.
struct SprayChange {
    int line;
    std::optional<std::array<float, 3>> endColour;
    std::optional<float> rate;
    std::optional<float> speed;
};

constexpr std::array<float, 3> ash{0.1F, 0.1F, 0.1F};
constexpr std::array<float, 3> fog{0.5F, 0.5F, 0.5F};
constexpr std::array<float, 3> yellow{0.5F, 0.5F, 0.12F};
constexpr std::array<float, 3> red{0.5F, 0.12F, 0.12F};
constexpr std::array<float, 3> green{0.12F, 0.5F, 0.12F};
constexpr std::array<float, 3> blue{0.12F, 0.12F, 0.5F};
constexpr std::array<float, 3> white{0.9F, 0.9F, 0.9F};
constexpr std::nullopt_t same = std::nullopt;

constexpr std::array sprayChanges{
    SprayChange{1, ash, 0.22F, same},  SprayChange{2, ash, 0.56F, 40.0F},
    SprayChange{3, same, same, 0.0F},  SprayChange{5, yellow, same, same},
    SprayChange{6, red, same, same},   SprayChange{7, green, same, same},
    SprayChange{8, blue, same, same},  SprayChange{9, blue, 1.0F, 15.0F},
    SprayChange{10, same, 0.0F, same}, SprayChange{11, fog, 3.0F, 0.0F},
    SprayChange{13, fog, 3.0F, 35.0F}, SprayChange{14, white, 5.0F, 115.0F},
};

void changeSpray(int line) {
    const auto* const change =
        std::find_if(sprayChanges.begin(), sprayChanges.end(),
                     [line](const SprayChange& row) { return row.line == line; });
    ParticleEmiter* emitter = introEmiter();
    if (change == sprayChanges.end() || emitter == nullptr) {
        return;
    }
    ParticleParams params = particlesOf(*chapterRow(1).stage.spray);
    if (change->endColour) {
        const auto& [r, g, b] = *change->endColour;
        params.endColour = {r, g, b, 0.0F};
    }
    params.rate = change->rate.value_or(params.rate);
    params.speed = change->speed.value_or(params.speed);
    emitter->setParams(params);
}

void lightPartner(float rate) {
    if (ParticleEmiter* emitter = introPartnerEmiter()) {
        emitter->params.rate = rate;
    }
}

void turnLightOff() {
    graphicsModule().ambientTarget = {0.0F, 0.0F, 0.0F};
    lightPartner(0.0F);
}

void turnLightOn() {
    graphicsModule().ambientTarget = {1.0F, 1.0F, 1.0F};
}

void riseRedCloud() {
    addCloud(-400.0F, 0.0F, 300.0F, particlesOf(*chapterRow(5).stage.spray),
             {0.4F, 0.1F, 0.1F, 0.0F});
}

void meetGhost() {
    addIntroGhost(200.0F, 0.0F, true);
}

void lightGhost() {
    lightPartner(ghostRate);
}

void openEyes() {
    if (EvilPlayer* monster = introMonster()) {
        monster->lightEyes();
    }
}

void openEyesWithAClunk() {
    openEyes();
    runScript("LOCK SOUND clunk2.wav REMOVESCRIPT");
}

/// What a line does beside its text.
struct LineEffect {
    int chapter;
    int line;
    void (*run)();
    bool dark = false; ///< The words are black.
};

constexpr std::array effects{
    LineEffect{4, 4, turnLightOff},       LineEffect{4, 5, turnLightOn, true},
    LineEffect{5, 4, riseRedCloud},       LineEffect{6, 3, meetGhost},
    LineEffect{7, 2, lightGhost},         LineEffect{8, 2, lightGhost},
    LineEffect{9, 3, openEyesWithAClunk}, LineEffect{11, 1, openEyes},
    LineEffect{11, 2, openEyes},          LineEffect{11, 3, openEyes},
    LineEffect{11, 4, openEyes},
};

void showLine(int number, bool dark) {
    inputModule().showTip(text(number), 0.0F, lineShift, true, dark);
}

void runLine(int chapter, int line, int number) {
    const auto* const effect =
        std::find_if(effects.begin(), effects.end(), [chapter, line](const LineEffect& row) {
            return row.chapter == chapter && row.line == line;
        });
    const bool special = effect != effects.end();
    showLine(number, special && effect->dark);
    if (special) {
        effect->run();
    }
}

/// A line of the first intro, or of the last.
void runWakingLine(int chapter, int line, int number) {
    const bool changes = chapter == 1 || line <= wakingLines;
    if (changes && line == 14) {
        soundManager().playFlat("kick1.wav", 128);
    }
    showLine(number, false);
    if (changes) {
        changeSpray(line);
    }
}

} // namespace

void registerIntroLines() {
    for (int chapter = 1; chapter <= chapterCount; ++chapter) {
        const auto run = chapter == 1 || chapter == chapterCount ? runWakingLine : runLine;
        int line = 0;
        for (const int number : chapterRow(chapter).lines) {
            ++line;
            addCallback("CH" + std::to_string(chapter) + "T" + std::to_string(line),
                        [=](SceneObject*, So_Addition*) { run(chapter, line, number); });
        }
    }
}
