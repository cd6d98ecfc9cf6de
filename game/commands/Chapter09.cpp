#include "CommandTables.h"
#include "GhostWalk.h"
#include "Monsters.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/Contacts.h"
#include "sceneManager/So_Addons/ForcefieldAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/ConstraintSolver/btHingeConstraint.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

// Colours: bars that fall to the ball of their colour, a board for nine balls, and water that is
// raised and let out again.

namespace {

using namespace verb;

constexpr float doorStep = 2.0F; // units a step
constexpr float waterStep = 0.5F;
constexpr const char* bubbling = "bubbling.wav";
constexpr std::uint8_t loud = 128;
constexpr float barBurst = 200.0F; // particles
constexpr float streamRate = 1.0F; // particles a step
constexpr float streamPower = 0.1F;
constexpr float pinHeight = 18.0F; // of the plug's middle over its socket: clear of the floor
constexpr float behind = 350.0F;   // world units, to the left
constexpr std::size_t rising = 0;  // index in `chapterFlags`: the water is on its way up

/// The colour that belongs on each cell of the board, C1 to C9, as its balls are named.
constexpr std::array board{'B', 'B', 'G', 'R', 'R', 'G', 'B', 'G', 'R'};

bool holdsBall(const SceneObject& cell, char colour) {
    for (const char number : {'1', '2', '3'}) {
        if (cell.touchesObject({colour, number})) {
            return true;
        }
    }
    return false;
}

/// Stands on the board: all nine at rest on their colours open the door.
void checkColours(SceneObject* owner, So_Addition* link) {
    for (std::size_t i = 0; i < board.size(); ++i) {
        const SceneObject* cell = sceneManager().getSceneObject("C" + std::to_string(i + 1));
        if (cell == nullptr || !holdsBall(*cell, board[i])) {
            return;
        }
    }
    runScript("LOCK SOUND kick1.wav CH9COLORSDONE REMOVESCRIPT");
    endLoop(owner, link);
}

/// Stands on a bar: the ball of its colour is spent on it, and it hurts no more.
ScriptCallback barFor(const std::string& ball) {
    return [ball](SceneObject* owner, So_Addition*) {
        SceneObject* spent = touchWithin(owner, ball);
        if (spent == nullptr) {
            return;
        }
        zap(bodyOf(spent)->getWorldTransform().getOrigin());
        sceneManager().markForRemoval(spent);
        if (auto* spray =
                static_cast<ParticleEmiter*>(owner->findAddition(AdditionType::particleEmiter))) {
            spray->accumulator += barBurst;
            spray->params.rate = 0.0F;
        }
        if (So_Addition* harm = owner->findAddition(AdditionType::damage)) {
            owner->removeAddition(harm);
        }
    };
}

/// The stream flows once nothing plugs it.
void applyStream(SceneObject*, So_Addition*) {
    SceneObject* stream = sceneManager().getSceneObject("STREAM");
    if (stream == nullptr || sceneManager().getSceneObject("NIE") != nullptr) {
        return;
    }
    if (auto* spray =
            static_cast<ParticleEmiter*>(stream->findAddition(AdditionType::particleEmiter))) {
        spray->randomSpeed = true;
        spray->params.rate = streamRate;
    }
    if (stream->findAddition(AdditionType::forcefield) == nullptr) {
        stream->addAddition(new ForcefieldAdd(streamPower));
    }
}

void spawnBehind(SceneObject* owner, So_Addition*) {
    if (const btRigidBody* body = bodyOf(owner)) {
        EvilPlayer& monster =
            addMonster(body->getWorldTransform().getOrigin() - btVector3(behind, 0.0F, 0.0F),
                       PlayerStatistics().speed);
        monster.growl();
    }
}

/// One of the waters, and the marker whose height it goes to.
struct Level {
    const char* water;
    const char* height;
};
using Levels = std::array<Level, 3>;
constexpr Levels full{{{"WATER1", "HEIGHT1"}, {"WATER2", "HEIGHT2"}, {"WATER3", "HEIGHT2"}}};
constexpr Levels empty{{{"WATER1", "HEIGHT4"}, {"WATER2", "HEIGHT5"}, {"WATER3", "HEIGHT5"}}};

bool isComplete(const Levels& levels) {
    return std::all_of(levels.begin(), levels.end(), [](const Level& level) {
        return physicsOf(level.water) != nullptr && physicsOf(level.height) != nullptr;
    });
}

/// One step up or down for all three; true when all are there.
bool moveWaters(const Levels& levels) {
    const auto arrived = std::count_if(levels.begin(), levels.end(), [](const Level& level) {
        btVector3 place;
        btVector3 goal;
        placeOf(level.water, place);
        placeOf(level.height, goal);
        return physicsOf(level.water)->moveTowards(place.x(), goal.y(), waterStep);
    });
    btVector3 place;
    placeOf(levels.front().water, place);
    soundManager().play(bubbling, place, 0, loud, false);
    return arrived == std::ssize(levels);
}

void endWater(So_Addition* link) {
    chapterFlags[rising] = 0;
    soundManager().stopAll(bubbling);
    physicsModule().removeScript(link);
}

void raiseWater(SceneObject*, So_Addition* link) {
    if (!isComplete(full) || moveWaters(full)) {
        endWater(link);
    }
}

/// The fountain goes the way of the water.
void drainWater(SceneObject*, So_Addition* link) {
    btVector3 dry;
    PhysicsObject* fountain = physicsOf("TRYSK");
    if (fountain == nullptr || !placeOf("ODTRYSK", dry) || !isComplete(empty)) {
        endWater(link);
        return;
    }
    emit("TRYSK", 0.0F)(nullptr, nullptr);
    const bool gone = fountain->moveTowards(dry.x(), dry.y(), waterStep);
    if (moveWaters(empty) && gone) {
        endWater(link);
    }
}

bool isPluggedIn() {
    const SceneObject* socket = sceneManager().getSceneObject("LACZ");
    const btRigidBody* plug = bodyOf(sceneManager().getSceneObject("WTYK"));
    for (int i = 0; plug != nullptr && i < plug->getNumConstraintRefs(); ++i) {
        const btTypedConstraint& joint =
            *const_cast<btRigidBody*>(plug)->getConstraintRef(i); // Bullet has no const one
        if (&joint.getRigidBodyA() == bodyOf(socket) || &joint.getRigidBodyB() == bodyOf(socket)) {
            return true;
        }
    }
    return false;
}

/// Stands on the plug at the end of its cable: where it meets the socket, and nobody holds it, it
/// goes up on the pin and stays.
void plugIn(SceneObject* owner, So_Addition* link) {
    btRigidBody* plug = bodyOf(owner);
    const SceneObject* socket = touchWithin(owner, "LACZ");
    if (plug == nullptr || socket == nullptr || plug->getNumConstraintRefs() != 1) {
        return;
    }
    btVector3 low;
    btVector3 high;
    bodyOf(socket)->getAabb(low, high);
    const btVector3 pin(0.5F * (low.x() + high.x()), high.y() + pinHeight, 0.0F);
    const btVector3 there = bodyOf(socket)->getWorldTransform().inverse() * pin;
    const btVector3 axis(0.0F, 0.0F, 1.0F);
    physicsModule().addConstraint(
        new btHingeConstraint(*plug, *bodyOf(socket), {0.0F, 0.0F, 0.0F}, there, axis, axis));
    runScript("LOCK SOUND switch.wav REMOVESCRIPT");
    colourLight("LACZ", 0.2F, 1.0F, 0.3F)(nullptr, nullptr);
    endLoop(owner, link);
}

/// The wheel lets the water in, if it has power. To be turned again after a load on the way.
void turnWheel(SceneObject*, So_Addition*) {
    if (chapterFlags[rising] != 0) {
        return;
    }
    if (!isPluggedIn()) {
        flatSound("switchoff.wav", 100)(nullptr, nullptr);
        interrupt({{530, 180}})(nullptr, nullptr);
        return;
    }
    chapterFlags[rising] = 1;
    verb::remove("NIE")(nullptr, nullptr);
    interrupt({{0, 60}, {269, 180}})(nullptr, nullptr);
    runScript("LOCK SOUND clunk1.wav DELAY 30 SOUND quake.wav -V 60 DELAY 30 CH9WATERUP "
              "REMOVESCRIPT");
}

} // namespace

std::span<const NamedCommand> chapter09Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER9TEXT", title(9)},
        NamedCommand{"CH9STER", turnWheel},
        NamedCommand{"CH9WATERUP", script("CH9WATERUPI")},
        NamedCommand{"CH9WATERUPI", raiseWater},
        NamedCommand{"CH9WATEREND", script("CH9WATERENDI")},
        NamedCommand{"CH9WATERENDI", drainWater},
        NamedCommand{"CH9CHECKCOLORS", checkColours},
        NamedCommand{"CH9COLORSDONE", all({hide("OBSCUR"), script("CH9DOOR")})},
        NamedCommand{"CH9DOOR", moveLoopTo("DOOR", "DOORDEST", doorStep)},
        NamedCommand{"CH9APPLYSTREAM", applyStream},
        NamedCommand{"CH9REDBAR", barFor("REDBALL")},
        NamedCommand{"CH9SPAWN", spawnBehind},
        NamedCommand{"CH9GREENBAR", barFor("GREENBALL")},
        NamedCommand{"CH9YELLOWBAR", barFor("YELLOWBALL")},
        NamedCommand{"CH9LACZ", plugIn},
    };
    return table;
}
