#include "ScriptWords.h"

#include <cassert>
#include <locale>
#include <sstream>

void takeKeyword(ScriptWords& words, [[maybe_unused]] const char* keyword) {
    assert(!words.empty() && words.front() == keyword);
    if (!words.empty()) {
        words.pop_front();
    }
}

std::string takeWord(ScriptWords& words) {
    if (words.empty()) {
        return {};
    }
    std::string word = std::move(words.front());
    words.pop_front();
    return word;
}

bool takeOption(ScriptWords& words, const char* option) {
    if (words.empty() || words.front() != option) {
        return false;
    }
    words.pop_front();
    return true;
}

bool takeInnerOption(ScriptWords& words, const char* option) {
    return words.size() >= 2 && takeOption(words, option);
}

std::string takeFileName(ScriptWords& words) {
    std::string name = takeWord(words);
    if (name.empty() || name.find_first_of(" \t\n\v\f\r") != std::string::npos) {
        return "-";
    }
    return name;
}

template <class T>
T takeNumber(ScriptWords& words, T fallback) {
    std::istringstream stream(takeWord(words));
    stream.imbue(std::locale::classic());
    T value{};
    return stream >> value ? value : fallback;
}

template int takeNumber(ScriptWords& words, int fallback);
template unsigned takeNumber(ScriptWords& words, unsigned fallback);
template float takeNumber(ScriptWords& words, float fallback);
