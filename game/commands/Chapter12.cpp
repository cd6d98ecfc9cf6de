#include "Chapter12Waves.h"
#include "CommandTables.h"
#include "GhostWalk.h"
#include "Monsters.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>

// The altar: it warms up while nobody stands on it, and answers the next step on it with a flash
// that monsters do not bear. Around it stand what leads up to the four waves and away from them.

namespace {

using namespace verb;

// Warmth is the red of the altar's light, dim enough to harm nobody.
constexpr float warm = 0.36F;
constexpr float cold = 0.06F;
constexpr float warming = (warm - cold) / 100.0F; // a step
constexpr float warmGreen = 0.72F;                // shares of red
constexpr float warmBlue = 0.5F;

constexpr float flashReach = 720.0F;         // world units
constexpr float flashHeight = 90.0F;         // over the altar
constexpr float flashRadius = 130.0F;        // of what is seen of it
constexpr float flashDepth = 1.6F;           // over the light map
constexpr float flashFading = 1.0F / 140.0F; // of the light's strength, a step
constexpr unsigned flashSparks = 40;

constexpr float gateStep = 1.5F; // units a step
constexpr float lockStep = 4.0F;
constexpr float enemySpeed = 190.0F; // units a second

LightAdd* lightOf(const SceneObject* object) {
    return object == nullptr ? nullptr
                             : static_cast<LightAdd*>(object->findAddition(AdditionType::light));
}

/// What fades with the light that it carries, and goes.
void decreaseLight(SceneObject* owner, So_Addition*) {
    LightAdd* light = lightOf(owner);
    if (light == nullptr) {
        return;
    }
    LightProperties look = light->getProperties();
    for (float* channel : {&look.red, &look.green, &look.blue}) {
        *channel = std::max(*channel - flashFading, 0.0F);
    }
    light->setProperties(look);
}

LightAdd* makeFlashLight() {
    LightProperties look;
    look.size = flashReach;
    look.red = look.green = look.blue = 1.0F;
    look.texture = textureStore().find("light1.tga");
    return new LightAdd(look);
}

/// A light over the owner, without shadows, so that none hides behind itself.
void flash(SceneObject* owner, So_Addition*) {
    const btRigidBody* from = bodyOf(owner);
    btVector3 place;
    if (from != nullptr) {
        place = from->getWorldTransform().getOrigin();
    } else if (!placeOf("ALTAR", place)) {
        return;
    }
    place.setY(place.y() + flashHeight);
    SceneObjectDescription description;
    description.texture = textureStore().find("particle8.tga");
    description.texcoordMode = 0;
    description.z = flashDepth;
    auto* ball = new SceneObject(makeSphereParts(description, place.x(), place.y(), flashRadius));
    ball->physicsObject->kind = collisionKind::none;
    ball->addAddition(makeFlashLight());
    ball->addAddition(parseScript("CH12DECREASELIGHT MAKEINVISIBLE DELAY 150 REMOVEOBJECT"));
    sceneManager().addSceneObject(ball);
    graphicsModule().spawnSparks(place, flashSparks);
    soundManager().playAt("kick1.wav", place);
    zap(place);
}

/// Stands on the altar. How warm it is, its light says, and a save keeps.
void keepAltar(SceneObject* owner, So_Addition* link) {
    LightAdd* light = lightOf(owner);
    if (light == nullptr) {
        return;
    }
    LightProperties look = light->getProperties();
    if (!touchesProtagonist(owner)) {
        if (look.red >= warm) {
            return;
        }
        look.red = std::min(look.red + warming, warm);
        if (look.red >= warm) {
            soundManager().playAt("minibell.wav", bodyOf(owner)->getWorldTransform().getOrigin());
        }
    } else if (look.red >= warm) {
        look.red = cold;
        flash(owner, link);
    } else {
        return;
    }
    look.green = look.red * warmGreen;
    look.blue = look.red * warmBlue;
    light->setProperties(look);
}

/// Stands on the lift: the first time that it lifts the protagonist, it is remarked on.
void remarkOnGravity(SceneObject* owner, So_Addition* link) {
    if (owner != nullptr && owner->findAddition(AdditionType::forcefield) != nullptr &&
        touchesProtagonist(owner)) {
        talk({{330, 160}, {0, 30}, {366, 180}})(owner, link);
        owner->removeAddition(link);
    }
}

/// Two, that come for the protagonist, and by themselves no further than into the light.
void callEnemies(SceneObject* owner, So_Addition* link) {
    btVector3 place;
    btVector3 lamp;
    if (!placeOf("ENEMYPOS", place) || !placeOf("ENEMYDEST", lamp)) {
        return;
    }
    for (const float behind : {0.0F, 30.0F}) {
        addMonster(place + btVector3(behind, 0.0F, 0.0F), enemySpeed, {lamp}).growl();
    }
    soundManager().playAt("howl.wav", place);
    talk({{328, 120}})(owner, link);
}

/// Stands on the way out while it opens, so that a save brings it back half open.
void raiseExit(SceneObject* owner, So_Addition* link) {
    btVector3 open;
    PhysicsObject* gate = physicsOf("PORTA");
    const bool moves = gate != nullptr && placeOf("PORTADEST", open);
    if (moves && !gate->moveTowards(open.x(), open.y(), gateStep)) {
        return;
    }
    endLoop(owner, link);
}

} // namespace

std::span<const NamedCommand> chapter12Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER12TEXT", verb::title(12)},
        NamedCommand{"CH12DECREASELIGHT", decreaseLight},
        NamedCommand{"CH12FLASH", flash},
        NamedCommand{"CH12GRAVITY", remarkOnGravity},
        NamedCommand{"CH12SPAWN1", waves::spawn1},
        NamedCommand{"CH12SPAWN2", waves::spawn2},
        NamedCommand{"CH12SPAWN3", waves::spawn3},
        NamedCommand{"CH12ZAMK", moveLoopTo("ZAMK", "ZAMKDEST", lockStep,
                                            dustAt("ZAMK", 0.0F, -70.0F, 30, "close.wav"))},
        NamedCommand{"CH12WAVESTART", waves::start},
        NamedCommand{"CH12WAVE2START", waves::startWave2},
        NamedCommand{"CH12WAVE2", waves::wave2},
        NamedCommand{"CH12WAVE3START", waves::startWave3},
        NamedCommand{"CH12WAVE3", waves::wave3},
        NamedCommand{"CH12WAVE4START", waves::startWave4},
        NamedCommand{"CH12WAVE4", waves::wave4},
        NamedCommand{"CH12KONIECWAVEI", waves::startEnd},
        NamedCommand{"CH12KONIECWAVE", waves::end},
        NamedCommand{"CH12REMOVEGHOST", dismiss("GHOST")},
        NamedCommand{"CH12GHOST", haunt({{314, 140},
                                         {315, 120},
                                         {316, 100},
                                         {319, 140},
                                         {317, 140},
                                         {318, 140},
                                         {323, 180}})},
        NamedCommand{"CH12PRET", talk({{560, 160}, {0, 60}, {331, 160}})},
        NamedCommand{"CH12PRE", script("LOCK SOUND anxiety5.wav DELAY 40 CH12PRET REMOVESCRIPT")},
        NamedCommand{"CH12GHOST2",
                     haunt({{322, 160}, {324, 180}, {325, 180}, {326, 200}, {327, 220}})},
        NamedCommand{"CH12ENEMIES", callEnemies},
        NamedCommand{"CH12ALTAR", keepAltar},
        NamedCommand{"CH12PORI", all({chainOn("PORTA", "CH12POR"),
                                      dustAt("PORTA", 0.0F, -60.0F, 30, "grind.wav")})},
        NamedCommand{"CH12POR", raiseExit},
    };
    return table;
}
