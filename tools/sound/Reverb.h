#pragma once

#include "Signal.h"

/// A room of stone: the signal together with its echoes, longer than it was by `seconds`.
struct Room {
    float seconds; // until the echoes have faded by 60 decibels
    float size;    // 1 is a hall of 20 metres
    float bright;  // hertz above which the walls swallow
    float wet;     // strength of the echoes; the dry sound has 1
};

/// `side` is the ear, -1 to 1: the two ears hear different echoes.
Signal inRoom(const Signal& dry, const Room& room, float side);
