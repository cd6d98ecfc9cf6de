#include "Secrets.h"

#include "ChapterFlow.h"
#include "Language.h"
#include "Progress.h"
#include "Steam.h"
#include "inputModule/InputModule.h"
#include "soundModule/SoundManager.h"

#include <array>
#include <iostream>

namespace {

/// A secret by its chapter.
struct Secret {
    int line;                ///< Of the language table.
    const char* achievement; ///< Null for the last, which only ends the game.
};

constexpr std::array<Secret, chapterCount> secrets{{
    {334, "A1"},
    {335, "A2"},
    {336, "A3"},
    {337, "A4"},
    {338, "A5"},
    {339, "A6"},
    {340, "A7"},
    {341, "A8"},
    {342, "A9"},
    {343, "A10"},
    {344, "A11"},
    {345, "A12"},
    {346, "A13"},
    {347, "A14"},
    {377, nullptr},
}};

void ring() {
    soundManager().playFlat("minibell.wav", 128);
}

void show(const std::string& words) {
    inputModule().showTip(words, 0.0F, 0.0F, false, false);
}

/// Returns how many are found then.
std::size_t keepSecret(std::size_t index) {
    const ChapterBits found = readSecrets().set(index);
    writeSecrets(found);
    return found.count();
}

} // namespace

void findSecret(int chapter, const std::function<void()>& beforeTelling) {
    const std::size_t index = static_cast<std::size_t>(chapter) - 1;
    const Secret& secret = secrets.at(index);
    if (secret.achievement != nullptr) {
        runScript("LOCK DELAY 350 TIP -1 REMOVESCRIPT");
    }
    ring();
    if (secret.achievement != nullptr) {
        setAchievement(secret.achievement);
    }
    const std::size_t count = keepSecret(index);
    if (beforeTelling) {
        beforeTelling();
    }
    show(text(secret.line) + " (" + std::to_string(count) + "/15)");
}

void ringAndShow(const std::string& words) {
    ring();
    show(words);
}

void setAchievement(const char* name) {
    if (!steam().hasUserStats()) {
        std::cout << "SteamUserStats fail\n";
        return;
    }
    if (!steam().setAchievement(name)) {
        std::cout << "SetAchievement fail\n";
    }
    if (!steam().storeStats()) {
        std::cout << "StoreStats() fail\n";
    }
}
