#pragma once

#include <cstdint>
#include <string>

/// Gives the only stream of an OGG file the number that we say. The encoder draws one by the clock,
/// and two builds would differ. Raises a string when the file is not an OGG.
void numberOggStream(const std::string& path, std::uint32_t number);
