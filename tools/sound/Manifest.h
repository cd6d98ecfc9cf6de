#pragma once

#include "Clip.h"

#include <cstdint>
#include <string>
#include <vector>

/// One row of the list of sounds.
struct SoundRow {
    std::string file, recipe;
    float seconds = 0;
    int channels = 1;
    float peak = -3; // decibels of full scale
    std::uint32_t seed = 0;
    Ending ending = Ending::once;
};

/// Raises a string with the line's number when a row is not one.
std::vector<SoundRow> readManifest(const std::string& path);
