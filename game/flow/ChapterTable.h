#pragma once

#include "Progress.h"

#include <optional>
#include <string>
#include <vector>

/// A point of the world, in its units.
struct Place {
    float x, y;
};

/// What the emitter of an intro's backdrop sprays: lengths in world units, times in steps.
struct Spray {
    float size;  ///< Half the side at birth; at death it is 0.
    float z;     ///< Depth.
    float life;  ///< All of it is a fade.
    float grey;  ///< At death; at birth it is black.
    float speed; ///< World units a second.
    float rate;  ///< Particles a step.
};

/// What stands on an intro's stage beside the backdrop.
enum class IntroPartner {
    none,
    cloud,         ///< A second sphere, whose spray is dark red.
    ghost,         ///< A light without a body.
    unlitGhost,    ///< One that a line of the intro lights.
    monster,       ///< A puppet with its eyes closed.
    wakingMonster, ///< A puppet that opens its eyes at once.
};

/// The dark stage on which the lines of an intro appear.
struct IntroStage {
    const Spray* spray = nullptr; ///< Of the backdrop, a sphere; without one there is no backdrop.
    float radius = 0.0F;          ///< Of the backdrop.
    Place place{};                ///< Of the backdrop.
    IntroPartner partner = IntroPartner::none;
    Place partnerPlace{};
    const char* mover = ""; ///< Command that runs in every step from the beginning, or empty.
    const char* head = "";  ///< Command that runs in every step as long as the intro, or empty.
};

/// All that makes one chapter another than the next.
struct ChapterRow {
    int title;              ///< Number in the language table, as those of the lines.
    std::vector<int> lines; ///< Of the intro, the first is T1.
    /// When the lines come, and the wait behind the last: "300 T1 200" is line 1 after 300 steps
    /// and a wait of 200; ~ waits as long as it takes to read, or until a key.
    std::string pace;
    float ambient;                   ///< Grey of the intro's light, 0 to 1.
    bool followsBackdrop;            ///< The intro's camera; else it stands at the world's origin.
    float zoom;                      ///< Of the intro's camera.
    IntroStage stage;                ///< Of the intro.
    std::optional<Place> start = {}; ///< Of the character; else it is the object named STARTPOS.
    bool asMonster = false;          ///< The user plays a monster.
};

/// The row of a chapter, 1 to `chapterCount`.
const ChapterRow& chapterRow(int chapter);
