#include "CommandTables.h"
#include "GhostWalk.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>
#include <cmath>

// The scale: a wheel that wants somebody to run on it, two pans that weigh what lies on them, a
// block that gives way to whoever insists, and a ball that shoots off at a touch.

namespace {

using namespace verb;

constexpr float wheelAtRest = 0.4F;   // radians a second that lift nothing
constexpr float liftPerRadian = 0.1F; // units a step for each radian a second
constexpr float fastestLift = 0.6F;   // units a step

// A pan with what hangs it on the beam, and the way it goes when the first one is the heavier.
struct Pan {
    const char* name;
    const char* chain;
    float way; ///< -1 or 1.
};
constexpr std::array pans{Pan{"SZALKA1", "LANCUCH1", -1.0F}, Pan{"SZALKA2", "LANCUCH2", 1.0F}};

constexpr float reachX = 58.0F;       // world units to each side of a pan's middle
constexpr float reachUp = 300.0F;     // over and under where it hangs
constexpr float shaftX = 150.0F;      // to each side of the shaft's middle, niches included
constexpr float shaftUp = 60.0F;      // from the pan's middle at rest to the floor, nearly
constexpr float unitsPerMass = 80.0F; // of way
constexpr float highest = 100.0F;     // over where a pan hangs at rest
constexpr float deepest = -82.0F;     // under it: a leap leads out again
constexpr float panStep = 1.1F;       // units a step
constexpr float beamArm = 180.0F;     // units from the pivot to where a pan hangs
constexpr float sameWeight = 0.05F;
constexpr float someWeight = 0.9F;

constexpr float pushSpeed = 80.0F; // units a second
constexpr float pushBrake = 0.7F;  // factor a step on what nobody pushes
constexpr double pushSlack = 1.5;  // units between the two that still are a touch

constexpr float shotSpeed = 430.0F; // units a second
constexpr float shotLift = 50.0F;
constexpr float shotBurst = 60.0F; // particles
constexpr float burstSpeed = 160.0F;

/// Stands on the wheel: its turning, whichever way, lifts KRATA to KRATADEST. The gate keeps what
/// it has gained.
void turnWheel(SceneObject* owner, So_Addition* link) {
    const btRigidBody* wheel = bodyOf(owner);
    PhysicsObject* gate = physicsOf("KRATA");
    btVector3 open;
    if (wheel == nullptr || gate == nullptr || !placeOf("KRATADEST", open)) {
        endLoop(owner, link);
        return;
    }
    const float turn = std::abs(wheel->getAngularVelocity().z());
    if (turn < wheelAtRest) {
        return;
    }
    if (gate->moveTowards(open.x(), open.y(), std::min(turn * liftPerRadian, fastestLift))) {
        endLoop(owner, link);
        soundManager().playAt("clunk1.wav", open);
    }
}

bool isOn(const btRigidBody& pan, const btRigidBody& body) {
    const btVector3 way =
        body.getWorldTransform().getOrigin() - pan.getWorldTransform().getOrigin();
    return std::abs(way.x()) < reachX && way.y() > 0.0F;
}

/// Whether the body is below the floor beside the pan, in a niche of its shaft. There it counts as
/// if it lay on the pan, so that no pan rises and walls somebody in, and no weight is lost.
bool isInShaft(const btRigidBody& body, const btVector3& base) {
    const btVector3 way = body.getWorldTransform().getOrigin() - base;
    return std::abs(way.x()) < shaftX && way.y() < shaftUp && way.y() > -reachUp;
}

/// The mass of all that is on the pan, or in a leap over it.
float loadOf(const std::string& pan) {
    btVector3 base;
    const PhysicsObject* physics = physicsOf(pan);
    if (physics == nullptr || !placeOf(pan + "POS", base)) {
        return 0.0F;
    }
    float load = 0.0F;
    for (const btRigidBody* body : physicsModule().queryBox(base.x(), base.y(), shaftX, reachUp)) {
        if (!body->isStaticObject() && (isOn(*physics->body, *body) || isInShaft(*body, base))) {
            load += 1.0F / body->getInvMass();
        }
    }
    return load;
}

/// Towards the place of the marker that bears the object's name and POS, and so much over it.
void hangAt(const std::string& object, float height) {
    btVector3 base;
    PhysicsObject* physics = physicsOf(object);
    if (physics != nullptr && placeOf(object + "POS", base)) {
        physics->moveTowards(base.x(), base.y() + height, panStep);
    }
}

/// The beam lies as its pans hang.
void tilt(SceneObject& beam) {
    btVector3 pan;
    btVector3 base;
    if (placeOf("SZALKA2", pan) && placeOf("SZALKA2POS", base)) {
        const float angle = std::asin(std::clamp((pan.y() - base.y()) / beamArm, -1.0F, 1.0F));
        beam.physicsObject->body->getWorldTransform().setRotation(
            btQuaternion(btVector3(0.0F, 0.0F, 1.0F), angle));
    }
}

/// Who stands on the scale belongs to it: it is not pushed off, and no lamp changes the weights.
void keepOldOne() {
    SceneObject* old = sceneManager().getSceneObject("STARY");
    if (bodyOf(old) == nullptr) {
        return;
    }
    bodyOf(old)->setLinearFactor(btVector3(0.0F, 1.0F, 0.0F));
    if (So_Addition* reader = old->findAddition(AdditionType::lightReader)) {
        old->removeAddition(reader);
    }
}

/// Stands on the beam. The pans go as far apart as their loads are.
void weigh(SceneObject* owner, So_Addition* link) {
    keepOldOne();
    std::array<float, pans.size()> loads{};
    for (std::size_t i = 0; i < pans.size(); ++i) {
        if (physicsOf(pans[i].name) == nullptr || bodyOf(owner) == nullptr) {
            endLoop(owner, link);
            return;
        }
        loads[i] = loadOf(pans[i].name);
    }
    const float difference = loads[0] - loads[1];
    for (const Pan& pan : pans) {
        const float height = std::clamp(pan.way * difference * unitsPerMass, deepest, highest);
        hangAt(pan.name, height);
        hangAt(pan.chain, height);
    }
    tilt(*owner);
    const Player* player = sceneManager().player;
    const bool isEqual = std::abs(difference) < sameWeight && loads[0] > someWeight;
    if (isEqual && player != nullptr && !player->isSpeaking()) {
        talk({{312, 140}, {0, 500}})(owner, link);
    }
}

/// Which way the protagonist pushes the block: -1, 1, or 0 for not at all.
float pushOn(const SceneObject& block) {
    const Player* player = sceneManager().player;
    if (player == nullptr || !touchesProtagonist(&block, pushSlack)) {
        return 0.0F;
    }
    btVector3 low;
    btVector3 high;
    block.physicsObject->body->getAabb(low, high);
    const btVector3& place = player->physicsObject->body->getWorldTransform().getOrigin();
    if (place.y() > high.y()) {
        return 0.0F; // stands on it
    }
    const bool fromLeft =
        place.x() < block.physicsObject->body->getWorldTransform().getOrigin().x();
    const bool leans = (player->keys & (fromLeft ? playerKey::right : playerKey::left)) != 0;
    return leans ? (fromLeft ? 1.0F : -1.0F) : 0.0F;
}

/// Stands on a block that is too heavy for anybody, and slides for who leans on it.
void slide(SceneObject* owner, So_Addition*) {
    btRigidBody* block = bodyOf(owner);
    if (block == nullptr || block->isStaticObject()) {
        return;
    }
    const float push = pushOn(*owner);
    const btVector3 velocity = block->getLinearVelocity();
    if (push != 0.0F) {
        block->activate(true);
        block->setLinearVelocity(btVector3(push * pushSpeed, velocity.y(), 0.0F));
        block->setAngularVelocity(btVector3(0.0F, 0.0F, 0.0F));
    } else {
        block->setLinearVelocity(btVector3(velocity.x() * pushBrake, velocity.y(), 0.0F));
    }
}

/// The owner, or the ball KULA, lets go of what held it and shoots off, away from the protagonist.
void shoot(SceneObject* owner, So_Addition*) {
    SceneObject* ball = owner != nullptr ? owner : sceneManager().getSceneObject("KULA");
    const btRigidBody* player = bodyOf(sceneManager().player);
    btRigidBody* body = bodyOf(ball);
    if (body == nullptr || body->isStaticObject() || player == nullptr) {
        return;
    }
    if (btTypedConstraint* joint = firstJoint(ball)) {
        physicsModule().removeConstraint(joint);
    }
    const btVector3& place = body->getWorldTransform().getOrigin();
    const float way = place.x() < player->getWorldTransform().getOrigin().x() ? -1.0F : 1.0F;
    body->activate(true);
    body->setLinearVelocity(btVector3(way * shotSpeed, shotLift, 0.0F));
    burst(ball, burstSpeed, shotBurst);
    graphicsModule().spawnSparks(place, 20);
    soundManager().playAt("kick.wav", place);
    zap(place);
}

/// Who has always stood on the scale speaks up, and does not stop.
void greet(SceneObject* owner, So_Addition* link) {
    EvilPlayer* old = EvilPlayer::of(sceneManager().getSceneObject("STARY"));
    if (old == nullptr) {
        return;
    }
    speak(*old, {{364, 160}, {0, 40}, {365, 200}});
    old->addAddition(parseScript("SECRET11TALK"));
    talk({{0, 240}, {308, 200}})(owner, link);
}

} // namespace

std::span<const NamedCommand> chapter11Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER11TEXT", verb::title(11)},
        NamedCommand{"CH11KOLO", turnWheel},
        NamedCommand{"CH11WAGA", weigh},
        NamedCommand{"CH11PUSH", slide},
        NamedCommand{"CH11POWBALL", shoot},
        NamedCommand{"CH11TALKI", greet},
    };
    return table;
}
