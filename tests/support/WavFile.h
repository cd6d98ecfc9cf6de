#pragma once

#include <string>

/// A WAV file of plain samples, of 8 bits without sign or 16 with.
std::string makeWav(unsigned rate, unsigned channels, unsigned bits, const std::string& data);
