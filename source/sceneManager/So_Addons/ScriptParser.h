#pragma once

#include "CallbackAdd.h"

#include <span>

/// One keyword of the script language.
struct Keyword {
    const char* word;
    /// Takes the word and its arguments from the front and gives the link that they describe.
    CallbackAdd* (*make)(ScriptWords& words);
};

/// All keywords. Every other word is the name of a command.
std::span<const Keyword> keywordTable();
