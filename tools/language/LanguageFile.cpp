#include "LanguageFile.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace {

constexpr int mostTexts = 10000;

struct PolishLetter {
    char32_t letter;
    unsigned char byte;
};

constexpr PolishLetter polish[] = {
    {U'ę', 0xEA}, {U'ą', 0xB9}, {U'ó', 0xF3}, {U'ś', 0x9C}, {U'ł', 0xB3}, {U'ż', 0xBF},
    {U'ź', 0x9F}, {U'ć', 0xE6}, {U'ń', 0xF1}, {U'Ę', 0xCA}, {U'Ą', 0xA5}, {U'Ó', 0xD3},
    {U'Ś', 0x8C}, {U'Ł', 0xA3}, {U'Ż', 0xAF}, {U'Ź', 0x8F}, {U'Ć', 0xC6}, {U'Ń', 0xD1},
};

// Takes the first letter off a UTF-8 text; 0xFFFD stands for bytes that are no letter.
char32_t takeLetter(std::string_view& text) {
    auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 0 || length > text.size()) {
        text.remove_prefix(1);
        return 0xFFFD;
    }
    char32_t letter = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) {
            text.remove_prefix(i);
            return 0xFFFD;
        }
        letter = letter << 6 | (next & 0x3F);
    }
    text.remove_prefix(length);
    return letter;
}

std::string nameOf(char32_t letter) {
    char name[16];
    std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(letter));
    return name;
}

std::string inWindows1250(std::string_view text, const std::string& place) {
    std::string bytes;
    while (!text.empty()) {
        char32_t letter = takeLetter(text);
        auto row = std::ranges::find(polish, letter, &PolishLetter::letter);
        if (row != std::end(polish)) {
            bytes += static_cast<char>(row->byte);
        } else if (letter >= U' ' && letter <= U'~') {
            bytes += static_cast<char>(letter);
        } else {
            throw place + ": the game has no letter " + nameOf(letter);
        }
    }
    return bytes;
}

std::string_view takeLine(std::string_view& text) {
    std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

} // namespace

LanguageFile::LanguageFile(std::string_view name, std::string_view utf8) {
    if (utf8.starts_with("\xEF\xBB\xBF")) {
        utf8.remove_prefix(3);
    }
    for (int lineNumber = 1; !utf8.empty(); ++lineNumber) {
        std::string_view line = takeLine(utf8);
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::string place = std::string(name) + ":" + std::to_string(lineNumber);
        int number = 0;
        auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
        std::string_view rest = line.substr(static_cast<std::size_t>(end - line.data()));
        bool separated = rest.starts_with('\t') || rest.starts_with(": ");
        if (error != std::errc() || !separated || number < 1 || number > mostTexts) {
            throw place + ": a text begins with its number and a colon: " + std::string(line);
        }
        std::string text = inWindows1250(rest.substr(rest.front() == '\t' ? 1 : 2), place);
        if (!texts.emplace(number, text).second) {
            throw place + ": the text " + std::to_string(number) + " was given before";
        }
    }
}

std::string LanguageFile::windows1250() const {
    int last = texts.empty() ? lastNumber : std::max(lastNumber, texts.rbegin()->first);
    std::string bytes;
    for (int number = 1; number <= last; ++number) {
        auto found = texts.find(number);
        bytes += (found == texts.end() ? std::string() : found->second) + "\r\n";
    }
    return bytes;
}
