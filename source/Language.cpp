#include "Language.h"

#include "ModuleManager.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "platform/Window.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <iostream>

namespace {

struct LetterRow {
    std::uint8_t file;  // Windows-1250
    std::uint8_t table; // place in the game's font
};

constexpr LetterRow polishLetters[] = {
    {0xEA, 0xD6}, // e with ogonek
    {0xB9, 0xE0}, // a with ogonek
    {0xF3, 0xE3}, // o with acute
    {0x9C, 0xEA}, // s with acute
    {0xB3, 0xE9}, // l with stroke
    {0xBF, 0xED}, // z with dot
    {0x9F, 0xDA}, // z with acute
    {0xE6, 0xD3}, // c with acute
    {0xF1, 0xE1}, // n with acute
    {0xCA, 0xB6}, // the capitals, in the same order
    {0xA5, 0xC0}, {0xD3, 0xC3}, {0x8C, 0xCA}, {0xA3, 0xC9},
    {0xAF, 0xCD}, {0x8F, 0xBA}, {0xC6, 0xB3}, {0xD1, 0xC1},
};

using LetterTable = std::array<char, 256>;

constexpr LetterTable makeLetterTable() {
    LetterTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<char>(i);
    }
    for (const LetterRow& row : polishLetters) {
        table[row.file] = static_cast<char>(row.table);
    }
    return table;
}

constexpr LetterTable fontCodes = makeLetterTable();

/// The line with the other wording for a player with a joystick; 0 if there is none.
int joystickLine(int n) {
    constexpr int moveHint = 18;
    constexpr int grabHint = 29;
    if ((n != moveHint && n != grabHint) || !platform::window().isJoystickPresent()) {
        return 0;
    }
    return n == moveHint ? 393 : 394;
}

bool isLine(int n) {
    return n >= 1 && static_cast<std::size_t>(n) <= languageTable.size();
}

} // namespace

void loadLanguage() {
    try {
        languageFile = getModifier<std::string>("LANGUAGE_FILE", moduleManager().settingsText);
    } catch (const std::string& message) {
        std::cout << message << '\n';
    }
    if (languageFile.empty()) {
        return;
    }
    languageTable.clear();
    std::ifstream file(dataPrefix + languageFile, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        for (char& letter : line) {
            letter = fontCodes[static_cast<std::uint8_t>(letter)];
        }
        languageTable.push_back(line);
    }
}

std::string text(int n) {
    if (!isLine(n)) {
        return " ";
    }
    const int other = joystickLine(n);
    const int line = other != 0 ? other : n;
    return isLine(line) ? languageTable[static_cast<std::size_t>(line) - 1] : " ";
}
