#pragma once

#include "Recording.h"

#include <string>
#include <vector>

/// A sound that should be heard to begin in a step.
struct Due {
    std::string file;    ///< Of the built game, "click.wav".
    int step = 0;        ///< In which it is asked for.
    int slack = 3;       ///< Steps that it may be off.
    float volume = 0.0F; ///< At least, 0 to 128.
};

/// Compares a recording with all that should be heard in it: each sound of the list once, no other
/// time any of them, and silence wherever none of them rings. Returns complaints, a line each.
std::string complaintsOf(const Recording& recording, const std::vector<Due>& table);
