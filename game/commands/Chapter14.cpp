#include "CommandTables.h"
#include "Monsters.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>
#include <cmath>

// A painted day: strange things that come closer while nobody looks, one that rises to a look, and
// a sun that can be put out.

namespace {

using namespace verb;

// A thing that follows, and the distance that it keeps from the protagonist, in world units.
struct Follower {
    const char* name;
    float distance;
};
constexpr std::array followers{Follower{"DZIWA", 120.0F}, Follower{"DZIWB", 195.0F},
                               Follower{"DZIWC", 270.0F}};

constexpr float followStep = 1.3F; // units a step, as all steps here
constexpr float growStep = 1.6F;
constexpr float shrinkStep = 0.8F;
constexpr float gateStep = 2.5F;
constexpr float eyeDepth = 34.0F;   // units from the top of a thing down to its eye
constexpr float gazeShare = 0.7F;   // cosine of the widest angle between a look and what it meets
constexpr float gazeReach = 330.0F; // units from which the shy one feels a look
constexpr float markReach = 45.0F;  // units to each side of the mark

constexpr float halfLit = 0.5F; // green of the lamp of the mark between dim and lit
constexpr float dayAmbient = 0.5F;
constexpr float nightAmbient = 0.09F;
constexpr unsigned sunSparks = 60;
constexpr float dayMonsterSpeed = 120.0F;
constexpr float nightMonsterSpeed = 200.0F;

/// Whether the protagonist looks at the eye of the thing; `reach` is in world units.
bool isLookedAt(const btRigidBody& thing, const Player& player, float reach) {
    btVector3 low;
    btVector3 high;
    thing.getAabb(low, high);
    const btVector3 eye(thing.getWorldTransform().getOrigin().x(), high.y() - eyeDepth, 0.0F);
    const btVector3 place = player.physicsObject->body->getWorldTransform().getOrigin();
    const btVector3 gaze = player.aimPoint - place;
    const btVector3 way = eye - place;
    return way.length() < reach && gaze.dot(way) > gazeShare * gaze.length() * way.length();
}

Player* protagonist() {
    SceneObject* player = sceneManager().player;
    return player != nullptr ? player->asPlayer() : nullptr;
}

/// The three wake. Where each has come to is where a saved game finds it.
void wakeFollowers(SceneObject* owner, So_Addition* link) {
    for (const Follower& follower : followers) {
        chainOn(follower.name, "CH14DZIW1")(owner, link);
    }
    interrupt({{0, 200}, {178, 200}})(owner, link);
}

/// Stands on a thing that comes closer while it is not looked at, between DZIWL and DZIWR, and
/// stops at a polite distance.
void follow(SceneObject* owner, So_Addition*) {
    const btRigidBody* thing = bodyOf(owner);
    const Player* player = protagonist();
    btVector3 left;
    btVector3 right;
    if (thing == nullptr || player == nullptr || !placeOf("DZIWL", left) ||
        !placeOf("DZIWR", right)) {
        return;
    }
    const auto* const manners =
        std::find_if(followers.begin(), followers.end(),
                     [&](const Follower& one) { return owner->hasName(one.name); });
    if (manners == followers.end() || isLookedAt(*thing, *player, BT_LARGE_FLOAT)) {
        return;
    }
    const btVector3 place = thing->getWorldTransform().getOrigin();
    const float prey = player->physicsObject->body->getWorldTransform().getOrigin().x();
    const float side = place.x() < prey ? -1.0F : 1.0F;
    const float goal = std::clamp(prey + side * manners->distance, left.x(), right.x());
    if ((goal - place.x()) * side < 0.0F) {
        owner->physicsObject->moveTowards(goal, place.y(), followStep);
    }
}

/// Stands on the shy one, whose top rises to DZIW2UP while it is looked in the eye, and sinks to
/// DZIW2DOWN otherwise.
void growUnderLooks(SceneObject* owner, So_Addition*) {
    const btRigidBody* thing = bodyOf(owner);
    const Player* player = protagonist();
    btVector3 up;
    btVector3 down;
    if (thing == nullptr || player == nullptr || !placeOf("DZIW2UP", up) ||
        !placeOf("DZIW2DOWN", down)) {
        return;
    }
    btVector3 low;
    btVector3 high;
    thing->getAabb(low, high);
    const btVector3 place = thing->getWorldTransform().getOrigin();
    const bool grows = isLookedAt(*thing, *player, gazeReach);
    const float goal = (grows ? up.y() : down.y()) - (high.y() - place.y());
    owner->physicsObject->moveTowards(place.x(), goal, grows ? growStep : shrinkStep);
}

/// Lights or dims the lamp of the mark. True if that was a change.
bool showOnMark(bool taken) {
    const SceneObject* mark = sceneManager().getSceneObject("SLAD");
    const auto* lamp =
        mark != nullptr ? static_cast<LightAdd*>(mark->findAddition(AdditionType::light)) : nullptr;
    if (lamp == nullptr || (lamp->getProperties().green > halfLit) == taken) {
        return false;
    }
    colourLight("SLAD", 1.0F, taken ? 0.9F : 0.3F, taken ? 0.5F : 0.1F)(nullptr, nullptr);
    return true;
}

/// Whether one of the things stands on the mark, under the eyes of the protagonist.
bool isMarkTaken(const btVector3& mark) {
    const Player* player = protagonist();
    return player != nullptr &&
           std::any_of(followers.begin(), followers.end(), [&](const Follower& follower) {
               const btRigidBody* thing = bodyOf(sceneManager().getSceneObject(follower.name));
               return thing != nullptr &&
                      std::abs(thing->getWorldTransform().getOrigin().x() - mark.x()) < markReach &&
                      isLookedAt(*thing, *player, BT_LARGE_FLOAT);
           });
}

/// Stands on the gate, which is open for as long as one of the things on the mark SLAD is looked
/// at: those that merely pass it do not help. It never falls on the protagonist.
void heedMark(SceneObject* owner, So_Addition*) {
    const btRigidBody* gate = bodyOf(owner);
    btVector3 mark;
    btVector3 open;
    btVector3 shut;
    if (gate == nullptr || !placeOf("SLAD", mark) || !placeOf("KLAPADEST", open) ||
        !placeOf("KLAPAPOS", shut)) {
        return;
    }
    const bool taken = isMarkTaken(mark);
    if (showOnMark(taken)) {
        soundManager().playAt(taken ? "switch.wav" : "switchoff.wav", mark);
    }
    if (taken || !isOverProtagonist(shut)) {
        const btVector3& goal = taken ? open : shut;
        owner->physicsObject->moveTowards(goal.x(), goal.y(), gateStep);
    }
}

/// One that comes out into the day, and does not stand it.
void spawnByDay(SceneObject* owner, So_Addition* link) {
    btVector3 place;
    if (placeOf("SPAWN", place)) {
        addMonster(place, dayMonsterSpeed).growl();
        talk({{0, 60}, {584, 180}})(owner, link);
    }
}

/// Three that were waiting for the night.
void spawnByNight(SceneObject*, So_Addition*) {
    btVector3 place;
    if (!placeOf("SPAWN2", place)) {
        return;
    }
    for (const float behind : {0.0F, 45.0F, 90.0F}) {
        EvilPlayer& monster = addMonster(place - btVector3(behind, 0.0F, 0.0F), nightMonsterSpeed);
        monster.lightEyes();
        monster.growl();
    }
}

void stopMusic(SceneObject*, So_Addition*) {
    soundManager().playMusic("");
}

void sparkFromSun(SceneObject*, So_Addition*) {
    btVector3 sun;
    if (placeOf("SLONCE", sun)) {
        graphicsModule().spawnSparks(sun, sunSparks);
        zap(sun);
    }
}

/// Another light in the sun, and as much of it everywhere.
ScriptCallback shine(float brightness, float everywhere) {
    return all({colourLight("SLONCE", brightness, brightness * 0.98F, brightness * 0.92F),
                ambient(everywhere, everywhere, everywhere), sparkFromSun});
}

} // namespace

std::span<const NamedCommand> chapter14Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER14TEXT", verb::title(14)},
        NamedCommand{"CH14SPAWN2", spawnByNight},
        NamedCommand{"CH14DZK", all({shine(0.0F, nightAmbient), flatSound("kick1.wav", 110),
                                     interrupt({{0, 40}, {585, 180}}),
                                     chainOn("SLONCE", "LOCK DELAY 60 SOUND anxiety5.wav "
                                                       "CH14SPAWN2")})},
        NamedCommand{"CH14SPAWN", spawnByDay},
        NamedCommand{"CH14DZIW3", heedMark},
        NamedCommand{"CH14DZIW", wakeFollowers},
        NamedCommand{"CH14DZIW1", follow},
        NamedCommand{"CH14MUZ", all({stopMusic, interrupt({{0, 90}, {179, 200}})})},
        NamedCommand{"CH14DZIW2", growUnderLooks},
        NamedCommand{"CH14SS", all({shine(1.0F, dayAmbient), flatSound("switch.wav", 128),
                                    interrupt({{0, 60}, {180, 200}})})},
    };
    return table;
}
