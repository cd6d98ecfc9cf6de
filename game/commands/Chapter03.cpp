#include "Chapter03Window.h"
#include "CommandTables.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>

// The gate: what beats on it, a ball that plays five notes, and a window with something behind it.

namespace {

constexpr unsigned beatEvery = 70; // steps between two blows on the wedged gate
constexpr float gateClosed = 33.0F;
constexpr float gateOpen = 159.0F;
constexpr float gatePlace = -350.0F;
constexpr float gateStep = 5.6F;
constexpr float ballPush = 380.0F; // world units a second

/// The wedge sits if it touches both holders.
bool wedgeHolds(const SceneObject& block) {
    return touchWithin(&block, "H1") != nullptr && block.touchesObject("H2");
}

/// What waits outside lifts the gate as soon as the wedge has left a holder.
void checkWedge(SceneObject*, So_Addition* link) {
    if (physicsModule().stepCount % beatEvery == 0) {
        runScript("LOCK CH3GATEP REMOVESCRIPT");
    }
    const SceneObject* block = sceneManager().getSceneObject("BLOCK");
    if (block == nullptr) {
        physicsModule().removeScript(link);
        return;
    }
    if (wedgeHolds(*block)) {
        return;
    }
    runScript("LOCK SOUND stomp.wav CH3MOVE2 REMOVESCRIPT");
    verb::dustAt("WGATE", 40.0F, 0.0F, 50, "thud.wav")(nullptr, link);
    verb::talk({{116, 100}})(nullptr, link);
    physicsModule().removeScript(link);
}

/// The plate of that number sounds, and its lamp comes on.
ScriptCallback note(int number) {
    const std::string digit = std::to_string(number);
    return verb::all({verb::dustAt("TON" + digit, 0.0F, 20.0F, 4, "tone" + digit + ".wav"),
                      verb::colourLight("TON" + digit, 1.0F, 0.7F, 0.35F)});
}

/// Something in the trough kicks the ball, to the right if `way` is 1.
ScriptCallback kickBall(float way) {
    return [way](SceneObject*, So_Addition*) {
        PhysicsObject* ball = physicsOf("KULA");
        if (ball != nullptr && ball->body->getInvMass() > 0.0F) {
            ball->body->activate();
            ball->body->applyCentralImpulse(
                btVector3(way * ballPush / ball->body->getInvMass(), 0.0F, 0.0F));
            soundManager().playAt("click.wav", ball->body->getWorldTransform().getOrigin());
        }
    };
}

void haltBall(SceneObject*, So_Addition*) {
    if (PhysicsObject* ball = physicsOf("KULA")) {
        ball->body->setLinearVelocity(btVector3(0.0F, 0.0F, 0.0F));
        ball->body->setAngularVelocity(btVector3(0.0F, 0.0F, 0.0F));
    }
}

constexpr const char* gateCloses =
    "LOCK SOUND close.wav CH3MOVE1 DELAY 60 SOUND anxiety6.wav CH3SPAWN DELAY 60 CH3GATEP "
    "DELAY 80 CH3GATEP DELAY 100 CH3GATEP DELAY 60 CH3GATEP DELAY 20 CH3GATEP DELAY 120 CH3GATEP "
    "DELAY 100 CH3GATEP DELAY 60 CH3GATEP DELAY 20 CH3GATEP DELAY 120 CH3GATEP DELAY 100 CH3GATEP "
    "DELAY 60 CH3GATEP DELAY 100 CH3GATEP CH3GATEP CH3BLOCKCHECKI REMOVESCRIPT";

} // namespace

std::span<const NamedCommand> chapter03Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER3TEXT", verb::title(3)},
        NamedCommand{"CH3SPAWN", spawnBeforeGate},
        NamedCommand{"CH3GATEP", verb::dustAt("WGATE", 40.0F, 0.0F, 50, "stomp.wav")},
        NamedCommand{"CH3BLOCKCHECKI", verb::script("CH3BLOCKCHECK")},
        NamedCommand{"CH3BLOCKCHECK", checkWedge},
        NamedCommand{"CH3MOVE1", verb::script("CH3MOVE1INT")},
        NamedCommand{"CH3MOVE1INT", verb::moveLoop("WGATE", gatePlace, gateClosed, gateStep)},
        NamedCommand{"CH3MOVE2", verb::script("CH3MOVE2INT")},
        NamedCommand{"CH3MOVE2INT", verb::moveLoop("WGATE", gatePlace, gateOpen, gateStep)},
        NamedCommand{"CH3CL1", verb::script(gateCloses)},
        NamedCommand{"CH3SWITCH", verb::script("LOCK SOUND switch.wav CH3DEL REMOVESCRIPT")},
        NamedCommand{"CH3DEL", verb::all({verb::dustAt("PEG", 0.0F, 0.0F, 20, "clunk1.wav"),
                                          verb::remove("PEG")})},
        NamedCommand{"CH3STAY", haltBall},
        NamedCommand{"CH3TURL", kickBall(1.0F)},
        NamedCommand{"CH3TON1", note(1)},
        NamedCommand{"CH3TON2", note(2)},
        NamedCommand{"CH3TON3", note(3)},
        NamedCommand{"CH3TON4", note(4)},
        NamedCommand{"CH3TURLL", kickBall(-1.0F)},
        NamedCommand{"CH3TON5",
                     verb::all({note(5), verb::script("LOCK DELAY 60 CH3PLAY REMOVESCRIPT"),
                                verb::script("CH3MOVE3")})},
        NamedCommand{"CH3MOVE3", verb::moveLoopTo("TGATE", "TGATEDEST", 1.6F)},
        NamedCommand{
            "CH3PLAY",
            verb::script("LOCK SOUND tone1.wav DELAY 14 SOUND tone2.wav DELAY 14 SOUND tone3.wav "
                         "DELAY 14 SOUND tone4.wav DELAY 28 SOUND tone5.wav REMOVESCRIPT")},
        NamedCommand{
            "CH3PLAY2",
            verb::script("LOCK SOUND tone5.wav -V 70 DELAY 30 SOUND tone4.wav -V 60 DELAY 30 SOUND "
                         "tone2.wav -V 50 DELAY 30 SOUND tone1.wav -V 40 SOUND whisp.wav -V 70 "
                         "REMOVESCRIPT")},
        NamedCommand{"CH3WINB1", verb::script("CH3WINBUT1")},
        NamedCommand{"CH3WINBUT1", pressButton(1)},
        NamedCommand{"CH3POWER1", powerWindow(1)},
        NamedCommand{"CH3WINB2", verb::script("CH3WINBUT2")},
        NamedCommand{"CH3WINBUT2", pressButton(2)},
        NamedCommand{"CH3POWER2", powerWindow(2)},
        NamedCommand{"CH3WINSTOP", stopWindow},
        NamedCommand{"CH3EYES", openEyes()},
        NamedCommand{"CH3BLEND", verb::ambient(0.12F, 0.07F, 0.05F)},
        NamedCommand{"CH3WCISK", pressDaylight},
        NamedCommand{"CH3POKRYWKA", liftLid},
        NamedCommand{"CH3ZL1", wakeBehindWindow(1)},
        NamedCommand{"CH3ZL2", wakeBehindWindow(2)},
        NamedCommand{"CH3ZL3", wakeBehindWindow(3)},
        NamedCommand{"CH3ZL4", wakeBehindWindow(4)},
        NamedCommand{"CH3ZL5", wakeBehindWindow(5)},
        NamedCommand{"CH3ZL6", wakeBehindWindow(6)},
        NamedCommand{"CH3OP", verb::moveLoopTo("WYJSCIE", "WYJSCIED", 1.6F)},
        NamedCommand{"CH3LSPAWNI", startLastWave},
        NamedCommand{"CH3LSPAWN", spawnLast},
        NamedCommand{"CH3TALKWOW", verb::interrupt({{472, 100}, {0, 30}, {473, 200}})},
        NamedCommand{"CH3LSPAWNS", awaitEnd},
    };
    return table;
}
