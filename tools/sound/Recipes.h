#pragma once

#include "Take.h"

#include <span>
#include <string_view>

/// One way to make a sound. It may give more or less than the take's length: what becomes of the
/// rest is said by the manifest.
struct Recipe {
    std::string_view name;
    Signal (*render)(const Take& take);
};

/// All recipes, by family.
std::span<const Recipe> recipes();

// interface.cpp
Signal click(const Take& take);
Signal smallBell(const Take& take);
Signal chime(const Take& take);
Signal leverOn(const Take& take);
Signal leverOff(const Take& take);
Signal pickUp(const Take& take);
Signal putDown(const Take& take);
// impact.cpp
Signal footstep(const Take& take);
Signal thud(const Take& take);
Signal rolling(const Take& take);
Signal bodyBlow(const Take& take);
Signal brightDrum(const Take& take);
Signal darkDrum(const Take& take);
Signal gateBlow(const Take& take);
Signal giantStep(const Take& take);
// machine.cpp
Signal latch(const Take& take);
Signal gateFall(const Take& take);
Signal quake(const Take& take);
Signal grinding(const Take& take);
Signal humming(const Take& take);
Signal creak(const Take& take);
Signal squeak(const Take& take);
Signal electricity(const Take& take);
// body.cpp
Signal gasp(const Take& take);
Signal fearfulBreath(const Take& take);
Signal grunt(const Take& take);
Signal dying(const Take& take);
Signal gulp(const Take& take);
Signal drowning(const Take& take);
Signal heartbeat(const Take& take);
// water.cpp
Signal plunge(const Take& take);
Signal emergence(const Take& take);
Signal underWater(const Take& take);
Signal bubbling(const Take& take);
Signal waterfall(const Take& take);
Signal wetSteps(const Take& take);
// monster.cpp
Signal growl(const Take& take);
Signal deathCry(const Take& take);
Signal hiss(const Take& take);
Signal chomp(const Take& take);
Signal howl(const Take& take);
// dread.cpp
Signal whisper(const Take& take);
Signal mystery(const Take& take);
Signal fallingDark(const Take& take);
Signal hovering(const Take& take);
Signal wind(const Take& take);
// anxiety.cpp
Signal sting(const Take& take);
Signal climbingStrings(const Take& take);
Signal warDrums(const Take& take);
Signal collapse(const Take& take);
Signal metalMoan(const Take& take);
Signal deepPulse(const Take& take);
Signal riser(const Take& take);
Signal coldChoir(const Take& take);
// music.cpp
Signal darkAmbience(const Take& take);
Signal outOfBody(const Take& take);
// musicBelow.cpp
Signal mossAndRust(const Take& take);
Signal emberAndTide(const Take& take);
Signal ghostLight(const Take& take);
// musicBeyond.cpp
Signal farSide(const Take& take);
Signal frost(const Take& take);
Signal lamps(const Take& take);
