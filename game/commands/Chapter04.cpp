#include "CommandTables.h"
#include "Monsters.h"
#include "NamedObjects.h"
#include "Random.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>

// The kiln: a platform that beats, a boiler that is fed until it blows, and what the noise wakes.

namespace {

using namespace verb;

constexpr float beatSpeed = 900.0F; // units a second that a beat gives the platform
constexpr unsigned beatDust = 12;

constexpr float blastReach = 320.0F; // units from the boiler
constexpr float blastSpeed = 420.0F; // units a second that loose things get beside it
constexpr float scaldReach = 150.0F; // units in which the protagonist is hurt
constexpr int scald = 40;
constexpr unsigned blastSparks = 60;
constexpr unsigned blastDust = 40;

constexpr float grateStep = 4.0F;       // units a step
constexpr float grateClearance = 60.0F; // units that the protagonist is ahead of it when it falls
constexpr int liftVolume = 40;

constexpr float monsterSpeed = 200.0F;

/// Kicks the platform that the chain hangs on up its rail, and whoever stands on it.
void beat(SceneObject* owner, So_Addition*) {
    SceneObject* platform = owner != nullptr ? owner : sceneManager().getSceneObject("PLAT");
    btRigidBody* body = bodyOf(platform);
    if (body == nullptr || body->isStaticObject()) {
        return;
    }
    body->activate();
    body->setLinearVelocity(btVector3(0.0F, beatSpeed, 0.0F));
    const btVector3 place = body->getWorldTransform().getOrigin();
    graphicsModule().spawnDust(place - btVector3(0.0F, 20.0F, 0.0F), beatDust);
    soundManager().playAt("stomp.wav", place);
    burst(platform, beatSpeed / 3.0F, beatDust);
}

/// One from the pipe of the hall, which it walks up and down.
void leavePipe(SceneObject*, So_Addition*) {
    addMonster(btVector3(-495.0F, -950.0F, 0.0F), monsterSpeed,
               {btVector3(1080.0F, -970.0F, 0.0F), btVector3(-380.0F, -970.0F, 0.0F)});
}

/// Hurls away what is loose round the boiler, less the further off it is.
void blast(const btVector3& centre) {
    for (SceneObject* object : sceneManager().objects) {
        btRigidBody* body = bodyOf(object);
        if (body == nullptr || body->isStaticObject()) {
            continue;
        }
        const btVector3 way = body->getWorldTransform().getOrigin() - centre;
        const float distance = way.length();
        if (distance < blastReach && distance > 1.0F) {
            const float share = 1.0F - distance / blastReach;
            body->activate();
            body->setLinearVelocity(body->getLinearVelocity() +
                                    way * (share * blastSpeed / distance));
        }
        if (distance < scaldReach && object == sceneManager().player) {
            object->hurt(scald);
        }
    }
}

/// One of the blows in which the boiler goes.
void explode(SceneObject*, So_Addition*) {
    SceneObject* boiler = sceneManager().getSceneObject("KOC");
    btVector3 place;
    if (boiler == nullptr || !placeOf("KOC", place)) {
        return;
    }
    graphicsModule().ambient = {0.9F, 0.55F, 0.3F}; // a flash, which falls back to the target
    graphicsModule().spawnSparks(place, blastSparks);
    graphicsModule().spawnDust(place, blastDust);
    soundManager().playAt("kick" + std::to_string(drawRandom() % 2 + 1) + ".wav", place);
    blast(place);
}

/// The last blow, in which the boiler bursts. The gate, which its pressure held down, begins to
/// rise, and what lives in the pipe comes to see.
void burstBoiler(SceneObject* owner, So_Addition* link) {
    SceneObject* boiler = sceneManager().getSceneObject("KOC");
    if (boiler == nullptr) {
        return;
    }
    explode(owner, link);
    boiler->shatter();
    runScript("LOCK SOUND quake.wav CH4MOVE2INI CH4SPAWN REMOVESCRIPT");
}

/// Stands on the fire hole and burns the coal that comes into it. With the last of it the pressure
/// rises, through a checkpoint, until the boiler blows. What is left to burn is what is left in the
/// scene.
void stoke(SceneObject* owner, So_Addition* link) {
    if (SceneObject* coal = touchWithin(owner, "WEGIEL")) {
        const btVector3 place = coal->physicsObject->body->getWorldTransform().getOrigin();
        graphicsModule().spawnSparks(place, beatDust);
        soundManager().playAt("stomp.wav", place);
        sceneManager().markForRemoval(coal);
        return;
    }
    SceneObject* boiler = sceneManager().getSceneObject("KOC");
    if (owner == nullptr || boiler == nullptr || sceneManager().getSceneObject("WEGIEL")) {
        return;
    }
    boiler->addAddition(parseScript("LOCK SOUND anxiety2.wav DELAY 60 SAVEGAME DELAY 120 SOUND "
                                    "anxiety7.wav DELAY 200 CH4EXPL DELAY 60 CH4EXPL DELAY 40 "
                                    "CH4EXPL DELAY 25 CH4WYB"));
    talk({{484, 200}})(owner, link);
    owner->removeAddition(link);
}

/// Stands on the grate behind the gate: it falls shut when the protagonist is through.
void closeGrate(SceneObject* owner, So_Addition* link) {
    const btRigidBody* grate = bodyOf(owner);
    const btRigidBody* player = bodyOf(sceneManager().player);
    btVector3 shut;
    if (grate == nullptr || player == nullptr || !placeOf("KRATADEST", shut)) {
        return;
    }
    const float ahead =
        player->getWorldTransform().getOrigin().x() - grate->getWorldTransform().getOrigin().x();
    if (ahead < grateClearance ||
        !owner->physicsObject->moveTowards(shut.x(), shut.y(), grateStep)) {
        return;
    }
    graphicsModule().spawnDust(shut, blastDust);
    soundManager().playAt("close.wav", shut);
    talk({{0, 60}, {485, 160}})(owner, link);
    owner->removeAddition(link);
}

/// The lift starts, and two come after it from a hole.
void startLift(SceneObject*, So_Addition*) {
    runScript("CH4MOVE1");
    soundManager().playFlat("quake.wav", liftVolume);
    btVector3 hole;
    btVector3 lift;
    if (placeOf("SPAWNII", hole) && placeOf("MOVE1", lift)) {
        for (const float behind : {0.0F, 40.0F}) {
            addMonster(hole - btVector3(behind, 0.0F, 0.0F), monsterSpeed, {lift});
        }
    }
}

} // namespace

std::span<const NamedCommand> chapter04Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER4TEXT", verb::title(4)},
        NamedCommand{"CH4PLAT", chainOn("PLAT", "LOCK SOUND clunk1.wav DELAY 30 CH4BEATI")},
        NamedCommand{"CH4BEAT", beat},
        NamedCommand{"CH4MOVE1", moveLoop("MOVE1", 3080.0F, 60.0F, 0.2F)},
        NamedCommand{"CH4BEATI", all({chainOn("PLAT", "DELAY 110 CH4BEAT"),
                                      script("LOCK DELAY 10 SAVEGAME REMOVESCRIPT")})},
        NamedCommand{"CH4SPAWNI", leavePipe},
        NamedCommand{
            "CH4SPAWN",
            script("LOCK SOUND stomp1.wav SOUND anxiety5.wav DELAY 60 CH4SPAWNI  DELAY 160 "
                   "CH4SPAWNI DELAY 200 CH4SPAWNI CH4SPAWNI")},
        NamedCommand{"CH4MOVE2INI", all({script("CH4MOVE2"), flatSound("grind.wav", liftVolume)})},
        NamedCommand{"CH4MOVE2",
                     moveLoop("GATEND", 1192.0F, -850.0F, 0.2F, stopSound("grind.wav"))},
        NamedCommand{"CH4SPAWNII", startLift},
        NamedCommand{"CH4CG", closeGrate},
        NamedCommand{"CH4EXPL", explode},
        NamedCommand{"CH4KOC", stoke},
        NamedCommand{"CH4WYB", burstBoiler},
        NamedCommand{"CH4TH1SUPRE", talk({{480, 180}, {0, 30}, {481, 180}})},
        NamedCommand{"CH4TH1SUP", thought("TH1", 107, "CH4TH1SUPRE")},
        NamedCommand{"CH4TH1", script("LOCK CH4TH1SUP REMOVESCRIPT")},
        NamedCommand{"CH4TH2SUP", thought("TH2", 112, "")},
        NamedCommand{"CH4TH2", script("LOCK CH4TH2SUP REMOVESCRIPT")},
    };
    return table;
}
