#include "CommandTables.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/ForcefieldAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>

// The water works: three jets fill a funnel, the funnel the pool, and the pool turns a wheel that
// opens the way to a crystal, whose socket wakes the pipe.

namespace {

using namespace verb;

// A switch, what it turns on, and how hard that pushes.
struct Jet {
    const char* valve;
    const char* stream;
    float power; // multiples of gravity
    float rate;  // particles a step
};
constexpr std::array jets{Jet{"PRZ1", "SIK1", 1.4F, 1.6F}, Jet{"PRZ2", "SIK2", 0.5F, 1.2F},
                          Jet{"PRZ3", "SIK3", 1.6F, 1.6F}};
constexpr float suction = 0.9F; // multiples of gravity

constexpr float funnelStep = 0.8F; // units a step, as all steps here
constexpr float poolStep = 0.6F;
constexpr float sluiceStep = 1.0F;
constexpr float fountainRate = 0.9F; // particles a step
constexpr float wheelSpeed = 2.5F;   // radians a second under the fountains
constexpr float wheelGain = 0.02F;   // share of the way to it in a step
constexpr float gasRate = 1.5F;      // particles a step
constexpr int lethal = 1000;
constexpr int loud = 128;
constexpr unsigned sparkCount = 30;
const std::string bubbling = "bubbling.wav";

bool pushes(const SceneObject* stream) {
    return stream != nullptr && stream->findAddition(AdditionType::forcefield) != nullptr;
}

/// Makes a stream push and spray, and be heard. Nothing if it does already.
void startStream(SceneObject* stream, const std::string& name, float power, float rate) {
    if (stream == nullptr || pushes(stream)) {
        return;
    }
    stream->addAddition(new ForcefieldAdd(power));
    stream->addAddition(parseScript("SOUNDSOURCE waterfall.wav -V 100"));
    emit(name, rate)(nullptr, nullptr);
}

/// True when all jets run.
bool turnValves() {
    bool all = true;
    for (const Jet& jet : jets) {
        const SceneObject* valve = sceneManager().getSceneObject(jet.valve);
        SceneObject* stream = sceneManager().getSceneObject(jet.stream);
        if (valve != nullptr && !pushes(stream) && touchesProtagonist(valve)) {
            startStream(stream, jet.stream, jet.power, jet.rate);
            colourLight(jet.valve, 0.2F, 1.0F, 0.5F)(nullptr, nullptr);
            soundManager().playAt("switch.wav",
                                  valve->physicsObject->body->getWorldTransform().getOrigin());
        }
        all = all && pushes(stream);
    }
    return all;
}

/// Moves the named object one step on its way to another; true if it is there.
bool moveTo(const char* object, const char* destination, float step) {
    btVector3 target;
    PhysicsObject* physics = physicsOf(object);
    return physics != nullptr && placeOf(destination, target) &&
           physics->moveTowards(target.x(), target.y(), step);
}

void turnWheel() {
    btRigidBody* wheel = bodyOf(sceneManager().getSceneObject("KOLO"));
    if (wheel != nullptr && !wheel->isStaticObject()) {
        const btVector3 turn = wheel->getAngularVelocity();
        wheel->activate();
        wheel->setAngularVelocity(turn + (btVector3(0, 0, wheelSpeed) - turn) * wheelGain);
    }
}

void setFountains(float rate) {
    emit("TRYSK1", rate)(nullptr, nullptr);
    emit("TRYSK2", rate)(nullptr, nullptr);
}

/// The funnel sinks under its load and pours until the pool has risen; meanwhile the wheel turns.
/// The sluice that it drives opens.
void pour() {
    btVector3 level;
    btVector3 target;
    const bool full =
        placeOf("WODA", level) && placeOf("WODADEST", target) && level.distance(target) < poolStep;
    const bool tipped = moveTo("LEJ1", full ? "LEJ1DEST2" : "LEJ1DEST", funnelStep);
    if (full) {
        setFountains(0.0F);
        soundManager().stopAll(bubbling);
    } else if (tipped) {
        setFountains(fountainRate);
        soundManager().play(bubbling, level, 0, loud, false);
        moveTo("WODA", "WODADEST", poolStep);
        turnWheel();
    }
    if (full || tipped) {
        moveTo("PRZER1", "PRZER1DEST", sluiceStep);
    }
}

/// Whether the crystal is in its socket, and the pipe open. The chain that the socket got then,
/// through a checkpoint, tells that it has been there. A crystal that falls into water comes back
/// to where it hung.
bool fitCrystal() {
    SceneObject* socket = sceneManager().getSceneObject("SOCK");
    SceneObject* crystal = sceneManager().getSceneObject("PCRYS");
    if (socket == nullptr || crystal == nullptr) {
        return false;
    }
    btVector3 place;
    if (crystal->waterCount > 0 && placeOf("PCRYSPOS", place)) {
        crystal->physicsObject->body->setLinearVelocity(btVector3(0, 0, 0));
        putAt(*crystal, place);
        zap(place);
    }
    if (socket->findAddition(AdditionType::lock) == nullptr) {
        if (touchWithin(socket, "PCRYS") == nullptr) {
            return false;
        }
        placeOf("SOCK", place);
        graphicsModule().spawnSparks(place, sparkCount);
        zap(place);
        colourLight("SOCK", 0.5F, 1.0F, 0.95F)(nullptr, nullptr);
        talk({{494, 180}})(nullptr, nullptr);
        socket->addAddition(parseScript("LOCK SOUND mystery.wav DELAY 60 SAVEGAME"));
    }
    startStream(sceneManager().getSceneObject("SSAK"), "SSAK", suction, 1.0F);
    return moveTo("PRZER2", "PRZER2DEST", sluiceStep);
}

/// The whole of the works, in each step; what has been done is told by how things stand.
void runWorks(SceneObject* owner, So_Addition* link) {
    if (turnValves()) {
        pour();
    }
    if (fitCrystal() && owner != nullptr) {
        owner->removeAddition(link);
    }
}

/// What went into the one pipe comes out of the other.
void passPipe(SceneObject*, So_Addition*) {
    Player* player = sceneManager().player;
    btVector3 mouth;
    if (player == nullptr || !placeOf("RURA2", mouth)) {
        return;
    }
    player->physicsObject->body->setLinearVelocity(btVector3(0.0F, 0.0F, 0.0F));
    putAt(*player, mouth);
    graphicsModule().camera->setX(mouth.x());
    graphicsModule().camera->setY(mouth.y());
    graphicsModule().spawnDust(mouth, sparkCount);
    soundManager().playAt("plum2.wav", mouth);
    talk({{0, 40}, {495, 160}})(nullptr, nullptr);
}

/// Until the crystal that was let go has come down.
void watchFall(SceneObject*, So_Addition* link) {
    const SceneObject* crystal = sceneManager().getSceneObject("PCRYS");
    if (crystal != nullptr && !crystal->isTouching()) {
        return;
    }
    physicsModule().removeScript(link);
    btVector3 place;
    if (placeOf("PCRYS", place)) {
        graphicsModule().spawnSparks(place, sparkCount);
        zap(place);
        talk({{493, 160}})(nullptr, link);
    }
}

template <class Action>
void forEachMonster(Action action) {
    for (SceneObject* object : sceneManager().objects) {
        EvilPlayer* monster = EvilPlayer::of(object);
        if (monster != nullptr && object != sceneManager().player) {
            action(*monster);
        }
    }
}

void rouse(SceneObject*, So_Addition*) {
    forEachMonster([](EvilPlayer& monster) {
        monster.lightEyes();
        monster.growl();
    });
    talk({{496, 160}})(nullptr, nullptr);
}

/// Whatever is a monster falls to dust.
void deleteMonsters(SceneObject*, So_Addition*) {
    forEachMonster([](EvilPlayer& monster) { monster.hurt(lethal); });
}

/// The pipe breathes out among them.
void letGasIn(SceneObject*, So_Addition*) {
    btVector3 place;
    if (placeOf("GAZ", place)) {
        emit("GAZ", gasRate)(nullptr, nullptr);
        soundManager().playAt("wind.wav", place);
        forEachMonster([](EvilPlayer& monster) { monster.growl(); });
    }
}

} // namespace

std::span<const NamedCommand> chapter05Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER5TEXT", verb::title(5)},
        NamedCommand{"CH5RUR", passPipe},
        NamedCommand{"CH5WODA", runWorks},
        NamedCommand{"CH5SPADI",
                     all({release("PCRYS"), flatSound("clunk2.wav", 100), script("CH5SPAD")})},
        NamedCommand{"CH5SPAD", watchFall},
        NamedCommand{"CH5ANGAS", letGasIn},
        NamedCommand{"CH5DELENEMIES", deleteMonsters},
        NamedCommand{"CH5SC",
                     chainOn("SCENA", "LOCK LOCKMOVEMENT SOUND whisp.wav DELAY 80 CH5SC1 DELAY 200 "
                                      "CH5SC2 DELAY 300 CH5DELENEMIES DELAY 120 CH5SC3 DELAY 60 "
                                      "REVERSE KRATA1 REVERSE KRATA2 SOUND clunk1.wav "
                                      "UNLOCKMOVEMENT")},
        NamedCommand{"CH5SC1", rouse},
        NamedCommand{"CH5SC2",
                     all({talk({{497, 160}}), script("LOCK DELAY 60 CH5ANGAS REMOVESCRIPT")})},
        NamedCommand{"CH5SC3", all({talk({{498, 180}}), emit("GAZ", 0.0F)})},
        NamedCommand{"CH5THSUP", thought("TH", 149, "")},
        NamedCommand{"CH5TH", script("LOCK CH5THSUP REMOVESCRIPT")},
    };
    return table;
}
