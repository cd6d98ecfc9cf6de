#pragma once

#include "Mixer.h"

#include <memory>

/// The mixer of SDL_mixer on the system's audio device: 44100 Hz, 16 bits, stereo. SDL has one
/// audio device for all, so at most one of these may be open at a time.
std::unique_ptr<Mixer> makeSdlMixer();
