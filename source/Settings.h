#pragma once

#include <string>

/// The typed accessors of the settings text. A setting is found by plain search for its key; the
/// value starts one character behind the key and ends before the next white space. T is one of
/// int, bool, float, char, std::string for reading and of int, float, char, std::string for
/// writing.
/// @throws std::string "bad value in modifier " + key if the key is missing, has no value, or has a
/// value that does not convert.
template <class T>
T getModifier(const std::string& key, const std::string& text);

/// Replaces the line of `key`, up to its CR LF, by key, blank and value, or appends such a line.
template <class T>
void setModifier(const std::string& key, const T& value, std::string& text);
