#pragma once

#include <list>
#include <string>

/// The tokens of a script that have not been taken yet. Links take theirs from the front.
using ScriptWords = std::list<std::string>;

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

/// Takes a number (int, unsigned or float), read as a standard stream in the C locale would: a
/// minus in front of an unsigned wraps. `fallback` if the word does not convert or there is none.
template <class T>
T takeNumber(ScriptWords& words, T fallback);
