#include "Chapter13Ghosts.h"
#include "CommandTables.h"
#include "GhostWalk.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"

#include <LinearMath/btVector3.h>

#include <array>

// The cold machine: a helm opens six pipes, a piston beats, and the water of one pool rises in
// another. What has been done is told by how things stand, and by the chains that they carry.

namespace {

using namespace verb;

constexpr float fillStep = 0.8F; // units a step, as all steps here
constexpr float drainStep = 0.6F;
constexpr float strokeStep = 7.0F;
constexpr float liftStep = 1.6F;
constexpr float pipeRate = 0.5F; // particles a step
constexpr int loud = 128;
constexpr unsigned strokeDust = 20;
const std::string bubbling = "bubbling.wav";

int& pistonRises = chapterFlags[2]; ///< Of no weight: a stroke may begin anew.

/// The named pipe opens, and is seen and heard to.
ScriptCallback openPipe(const std::string& pipe) {
    return all({emit(pipe, pipeRate), colourLight(pipe, 0.35F, 0.75F, 1.0F),
                dustAt(pipe, 0.0F, 0.0F, 6, "clunk1.wav")});
}

ScriptCallback shutPipes() {
    std::vector<ScriptCallback> shut;
    for (const char* pipe : {"R1", "R2", "R3", "R4", "R5", "R6"}) {
        shut.push_back(emit(pipe, 0.0F));
        shut.push_back(colourLight(pipe, 0.1F, 0.2F, 0.3F));
    }
    return all(std::move(shut));
}

/// Stands on a water that moves to the place of an object and stays there.
ScriptCallback moveWater(const std::string& destination, float step, bool heard) {
    return [=](SceneObject* owner, So_Addition* link) {
        btVector3 level;
        if (owner == nullptr || owner->physicsObject == nullptr || !placeOf(destination, level)) {
            endLoop(owner, link);
            return;
        }
        if (heard) {
            soundManager().play(bubbling, level, 0, loud, false);
        }
        if (owner->physicsObject->moveTowards(level.x(), level.y(), step)) {
            soundManager().stopAll(bubbling);
            endLoop(owner, link);
        }
    };
}

/// Whether the water stands where the machine brings it.
bool isFull() {
    btVector3 level;
    btVector3 goal;
    return placeOf("WODA", level) && placeOf("WODADEST", goal) && level.distance(goal) < fillStep;
}

/// Stands on the piston: down with a blow and slowly up again, until the water has risen.
void beat(SceneObject* owner, So_Addition* link) {
    btVector3 goal;
    const char* end = pistonRises != 0 ? "TLOKUP" : "TLOKDOWN";
    if (owner == nullptr || owner->physicsObject == nullptr || !placeOf(end, goal)) {
        endLoop(owner, link);
        return;
    }
    if (!owner->physicsObject->moveTowards(goal.x(), goal.y(),
                                           pistonRises != 0 ? liftStep : strokeStep)) {
        return;
    }
    if (pistonRises == 0) {
        graphicsModule().spawnDust(goal, strokeDust);
        soundManager().playAt("stomp1.wav", goal);
    } else if (isFull()) {
        runScript("LOCK CH13STOPMACH REMOVESCRIPT");
        endLoop(owner, link);
    }
    pistonRises = 1 - pistonRises;
}

} // namespace

std::span<const NamedCommand> chapter13Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER13TEXT", verb::title(13)},
        NamedCommand{"CH13GHOSTSPAWNENEMY", ghosts::breatheMonster},
        NamedCommand{"CH13PUTANNOING", all({putGhost("ANPOS", "ANNOING", "CH13ANNOING"),
                                            flatSound("whisp.wav", 100)})},
        NamedCommand{"CH13ANNOING", ghosts::annoy},
        NamedCommand{"CH13GHOST",
                     haunt({{0, 60}, {570, 200}, {571, 220}, {572, 220}, {573, 220}}, "SAVEGAME")},
        NamedCommand{"CH13R1", openPipe("R1")},
        NamedCommand{"CH13R2", openPipe("R2")},
        NamedCommand{"CH13R3", openPipe("R3")},
        NamedCommand{"CH13R4", openPipe("R4")},
        NamedCommand{"CH13R5", openPipe("R5")},
        NamedCommand{"CH13R6", all({openPipe("R6"), chainOn("TLOK", "CH13MACH"),
                                    chainOn("WODA", "CH13WODO"), chainOn("BAJORO", "CH13BAJO")})},
        NamedCommand{"CH13STOPMACH",
                     all({shutPipes(), flatSound("switchoff.wav", 110), talk({{579, 180}})})},
        NamedCommand{"CH13MACH", beat},
        NamedCommand{"CH13STER",
                     chainOn("MACHINA", "LOCK SOUND switch.wav DELAY 30 CH13R1 DELAY 25 CH13R2 "
                                        "DELAY 25 CH13R3 DELAY 25 CH13R4 DELAY 25 CH13R5 DELAY 25 "
                                        "CH13R6")},
        NamedCommand{"CH13WODO", moveWater("WODADEST", fillStep, true)},
        NamedCommand{"CH13BAJO", moveWater("BAJODEST", drainStep, false)},
        NamedCommand{"CH13GOAWAY", all({dismiss("ANNOING"), talk({{0, 40}, {578, 160}})})},
        NamedCommand{"CH13BEGINBATTLE", ghosts::beginBattle},
        NamedCommand{"CH13BATTLEI", chainOn("GHOST", "CH13BATTLE")},
        NamedCommand{"CH13BATTLE", ghosts::battle},
        NamedCommand{"CH13BOSS", ghosts::challenge},
    };
    return table;
}
