#pragma once

#include "CallbackAdd.h"

#include <span>
#include <string_view>

/// One keyword of the script language.
struct Keyword {
    std::string_view word;
    /// Takes the word and its arguments from the front and gives the link that they describe.
    CallbackAdd* (*make)(ScriptWords& words);
};

/// All keywords. Every other word is the name of a command.
std::span<const Keyword> keywordTable();
