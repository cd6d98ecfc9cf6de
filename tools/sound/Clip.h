#pragma once

#include "Signal.h"

#include <string>
#include <vector>

/// A finished sound: one or two channels of equal length.
struct Clip {
    std::vector<Signal> channels;

    std::size_t frames() const { return channels.empty() ? 0 : channels.front().size(); }
};

/// How a clip ends.
enum class Ending {
    once, // it fades
    loop, // its end is crossfaded into its start: for what goes on without a shape
    wrap, // what is longer than the clip sounds on at its start: for beats and music
};

/// Brings what a recipe gave to its length, ends and level: no offset, no click, no seam, and the
/// loudest sample at `peak` decibels of full scale.
void finish(Clip& clip, float seconds, Ending ending, float peak);

/// How much longer than its file a sound must be rendered, in seconds.
float overlapOf(float seconds, Ending ending);

/// Writes a WAV of 16 bits, or an OGG, as the path ends. Raises a string when it cannot.
void save(const Clip& clip, const std::string& path);

/// Reads what the game would hear. Raises a string when it cannot.
Clip load(const std::string& path);
