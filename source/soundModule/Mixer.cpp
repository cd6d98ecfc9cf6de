#include "Mixer.h"

#include "SdlMixer.h"

#include <utility>

namespace {
std::unique_ptr<Mixer> waiting;
}

void setMixer(std::unique_ptr<Mixer> mixer) {
    waiting = std::move(mixer);
}

std::unique_ptr<Mixer> takeMixer() {
    return waiting ? std::move(waiting) : makeSdlMixer();
}
