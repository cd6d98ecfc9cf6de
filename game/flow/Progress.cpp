#include "Progress.h"

#include "ModuleManager.h"
#include "Settings.h"

#include <algorithm>

namespace {

/// The value of a setting, or what stands for a missing or damaged one.
template <class T>
T readOr(const T& otherwise, const std::string& key) {
    try {
        return getModifier<T>(key, moduleManager().settingsText);
    } catch (const std::string&) {
        return otherwise;
    }
}

template <class T>
void store(const std::string& key, const T& value) {
    setModifier(key, value, moduleManager().settingsText);
    moduleManager().saveSettings();
}

/// Of at most fifteen characters the last is the lowest bit; whatever is no "1" is no bit.
ChapterBits readBits(const std::string& key) {
    const std::string digits = readOr(std::string(), key).substr(0, chapterCount);
    ChapterBits bits;
    for (std::size_t bit = 0; bit < digits.size(); ++bit) {
        bits[bit] = digits[digits.size() - 1 - bit] == '1';
    }
    return bits;
}

} // namespace

ChapterBits readProgress() {
    return readBits("MAGIC_NUMBER");
}

void writeProgress(const ChapterBits& finished) {
    store("MAGIC_NUMBER", finished.to_string());
}

void finishChapter(int number) {
    writeProgress(readProgress().set(static_cast<std::size_t>(number) - 1));
}

ChapterBits readSecrets() {
    return readBits("SECRETS");
}

void writeSecrets(const ChapterBits& found) {
    store("SECRETS", found.to_string());
}

int readDeaths() {
    return std::max(readOr(0, "DEATHS"), 0);
}

void countDeath() {
    store("DEATHS", readDeaths() + 1);
}

std::string latestSave() {
    return readOr(std::string(), "ACTUAL_SAVE");
}

void setLatestSave(const std::string& name) {
    store("ACTUAL_SAVE", name);
}
