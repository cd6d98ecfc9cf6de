#pragma once

#include <map>
#include <string>
#include <string_view>

/// The texts of one language by their numbers, as translators edit them: UTF-8, one text a line,
/// its number before it ("12: text", or a tab in place of the colon and blank), in any order.
/// Empty lines and lines that begin with '#' are not texts.
///
/// The game reads Windows-1250 and finds a text by counting lines. Its font draws ASCII and the
/// Polish letters, so nothing else is let through.
class LanguageFile {
public:
    /// The game asks for the texts up to this number.
    static constexpr int lastNumber = 396;

    /// Raises a string with file and line on a line without a number, on a number that was given
    /// before, and on a letter that the game cannot draw. `name` is used in these messages.
    LanguageFile(std::string_view name, std::string_view utf8);

    /// Every text on the line of its number, empty lines in the gaps, at least `lastNumber` lines.
    std::string windows1250() const;

private:
    std::map<int, std::string> texts; // already in Windows-1250
};
