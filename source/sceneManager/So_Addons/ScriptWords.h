#pragma once

#include <string>
#include <string_view>

/// The words of a script that have not been taken yet, between single blanks; two blanks in a row
/// give an empty word. Links take theirs from the front. Looks at the text, which must outlive it.
class ScriptWords {
public:
    explicit ScriptWords(std::string_view script) : rest(script) {}

    bool empty() const { return rest.empty(); }
    /// There must be one.
    std::string_view front() const { return rest.substr(0, rest.find(' ')); }
    bool hasSecond() const { return front().size() + 1 < rest.size(); }
    /// Takes the front word, which must be there.
    std::string_view take();
    void clear() { rest = {}; }
    bool operator==(const ScriptWords&) const = default;

private:
    std::string_view rest;
};

/// Takes the keyword of a link, which must stand in front.
void takeKeyword(ScriptWords& words, const char* keyword);

/// Takes the next word; an empty one if none is left.
std::string takeWord(ScriptWords& words);

/// Takes the next word if it is this option.
bool takeOption(ScriptWords& words, const char* option);

/// The same for an option that needs a word behind it to be one.
bool takeInnerOption(ScriptWords& words, const char* option);

/// Takes the name of a sound file. Files are stored as plain words, so a name that could not be
/// read back as one (empty, or with white space in it) becomes "-", which names no sound.
std::string takeFileName(ScriptWords& words);

/// Reads a number (int, unsigned or float) at the beginning of a text, as a standard stream in the
/// C locale would: a minus in front of an unsigned wraps. `fallback` if there is none.
template <class T>
T numberIn(std::string_view text, T fallback);

/// Takes a word that is a number. `fallback` if it is none, or there is no word.
template <class T>
T takeNumber(ScriptWords& words, T fallback);
