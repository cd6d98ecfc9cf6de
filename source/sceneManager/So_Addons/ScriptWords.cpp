#include "ScriptWords.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <locale>
#include <optional>
#include <sstream>

std::string_view ScriptWords::take() {
    const std::string_view word = front();
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    return word;
}

void takeKeyword(ScriptWords& words, [[maybe_unused]] const char* keyword) {
    assert(!words.empty() && words.front() == keyword);
    if (!words.empty()) {
        words.take();
    }
}

std::string takeWord(ScriptWords& words) {
    return words.empty() ? std::string() : std::string(words.take());
}

bool takeOption(ScriptWords& words, const char* option) {
    if (words.empty() || words.front() != option) {
        return false;
    }
    words.take();
    return true;
}

bool takeInnerOption(ScriptWords& words, const char* option) {
    return words.hasSecond() && takeOption(words, option);
}

std::string takeFileName(ScriptWords& words) {
    std::string name = takeWord(words);
    if (name.empty() || name.find_first_of(" \t\n\v\f\r") != std::string::npos) {
        return "-";
    }
    return name;
}

/// Reads a number in plain digits, as nearly all are spelled; a stream for each of them would be
/// most of the work of reading a script.
template <class T>
static std::optional<T> readPlain(std::string_view word) {
    if (word.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    T value{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc{} ? std::optional(value) : std::nullopt;
}

template <class T>
T numberIn(std::string_view text, T fallback) {
    if (const std::optional<T> plain = readPlain<T>(text)) {
        return *plain;
    }
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    T value{};
    return stream >> value ? value : fallback;
}

template <class T>
T takeNumber(ScriptWords& words, T fallback) {
    return words.empty() ? fallback : numberIn(words.take(), fallback);
}

template int numberIn(std::string_view text, int fallback);
template int takeNumber(ScriptWords& words, int fallback);
template unsigned takeNumber(ScriptWords& words, unsigned fallback);
template float takeNumber(ScriptWords& words, float fallback);
