#include "CommandTables.h"
#include "GhostWalk.h"
#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/LightAdd.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "physicsModule/btFixedWorld.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/Contacts.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>
#include <cmath>

// The guide: a ghost light leads over stones, where up is down, past the rolling ball, and ahead of
// the creeping dark.

namespace {

constexpr float guideStep = 1.5F;   // units a step
constexpr float fleeingStep = 2.6F; // of the guide that runs ahead of the dark
constexpr float creepStep = 2.2F;   // of the dark: slower than the small one walks
constexpr float creepFall = 4.0F;   // while it comes down from above
constexpr int lamps = 6;            // LAMP1 and so on, which the dark puts out
constexpr float dying = 0.95F;      // factor on a light that goes out, a step
constexpr float dead = 0.02F;       // such a light is none
constexpr float tilt = 0.4F;        // sideways share of gravity where things roll
constexpr unsigned tiltSteps = 140; // until it tilts the other way
constexpr float brake = 0.96F;      // factor on the speed of what stops rolling
constexpr float atRest = 8.0F;      // units a second

/// The route. It begins where the ghost stands, and ends where the other one takes over.
std::vector<GhostStage> route() {
    return {
        {"GHOST1", nullptr, "GHOST2", 240.0F, {500, 200}},
        {"GHOST2", "W2", "GHOST3", 0.0F, {}},
        {"GHOST3", "W3", "GHOST4", 0.0F, {}},
        {"GHOST4", "W4", "GHOST5", 300.0F, {501, 180}},
        {"GHOST5", "W5", "GHOST6", 0.0F, {}},
        {"GHOST6", "W6", "GHOST7", 300.0F, {}},
        {"GHOST7", "W7", "GHOST8", 0.0F, {}},
        {"GHOST8", "W8", "GHOST9", 260.0F, {502, 240}},
        {"GHOST9", "W9", "GHOST10", 0.0F, {}},
        {"GHOST10", "W10", "GHOST11", 240.0F, {503, 180}},
        {"GHOST11", "W11", "GHOST11a", 0.0F, {}},
        {"GHOST11a", nullptr, "GHOST12", 200.0F, {504, 180}}, // until somebody falls up
        {"GHOST12", "W12", "GHOST13", 0.0F, {}},
        {"GHOST13", "W13", "GHOST13a", 330.0F, {505, 240}},
        {"GHOST13a", nullptr, "GHOST14", 150.0F, {}}, // until somebody is over the ball
        {"GHOST14", "W14", "GHOST15", 250.0F, {506, 180}},
        {"GHOST15", "W15", "GHOST16", 0.0F, {}},
        {"GHOST16", "W16", "GHOST17", 0.0F, {}},
        {"GHOST17", "W17", "GHOST18", 300.0F, {}},
        {"GHOST18", "W18", "GHOST19", 0.0F, {}},
        {"GHOST19", "W19", "GHOST20", 0.0F, {}},
        {"GHOST20", "W20", "GHOST21", 0.0F, {}},
        {"GHOST21", "W21", "GHOST22", 0.0F, {}},
        {"GHOST22", "W22", "GHOST23", 300.0F, {}},
        {"GHOST23", "W23", "GHOST", 160.0F, {507, 200}, "LOCK CH6SCENE REMOVESCRIPT"},
    };
}

std::vector<GhostStage> flight() {
    return {
        {"GHOSTX1", nullptr, "GHOSTX2", 0.0F, {509, 150}},
        {"GHOSTX2", "X2", "GHOSTX3", 0.0F, {}},
        {"GHOSTX3", "X3", "GHOSTX4", 0.0F, {}},
        {"GHOSTX4", "X4", "GHOST", 0.0F, {}},
    };
}

LightAdd* lightOf(const SceneObject* object) {
    return object != nullptr ? static_cast<LightAdd*>(object->findAddition(AdditionType::light))
                             : nullptr;
}

void kindleGuide(SceneObject*, So_Addition*) {
    if (Player* ghost = findGhost()) {
        kindle(*ghost, 460.0F, 0.6F, 0.75F, 1.0F);
    }
}

void kindleWarning(SceneObject*, So_Addition*) {
    if (Player* ghost = findGhost()) {
        kindle(*ghost, 560.0F, 1.0F, 0.2F, 0.15F);
        burst(ghost, 160.0F, 120.0F);
    }
}

/// True if nothing is left of the light.
bool dim(LightAdd& light) {
    LightProperties look = light.getProperties();
    for (float* part : {&look.red, &look.green, &look.blue}) {
        *part = *part * dying < dead ? 0.0F : *part * dying;
    }
    light.setProperties(look);
    return look.red + look.green + look.blue == 0.0F;
}

void dimOwner(SceneObject* owner, So_Addition* link) {
    LightAdd* light = lightOf(owner);
    if (light == nullptr || dim(*light)) {
        endLoop(owner, link);
    }
}

void dimGhost(SceneObject*, So_Addition*) {
    if (Player* ghost = findGhost()) {
        ghost->addAddition(parseScript("CH6DELIG2"));
    }
}

/// The scene hangs on the ghost, and so does its light's end: a saved game goes on with both.
void playScene(SceneObject*, So_Addition*) {
    if (Player* ghost = findGhost()) {
        ghost->addAddition(
            parseScript("LOCK LOCKMOVEMENT SOUND anxiety3.wav DELAY 120 CH6EDLIG2 DELAY 90 "
                        "CH6DELIG2I DELAY 120 UNLOCKMOVEMENT CH6WALK2PREP"));
    }
}

/// The guide goes out, the dark sets out, and somebody runs ahead.
void prepareFlight(SceneObject*, So_Addition*) {
    if (Player* ghost = findGhost()) {
        sceneManager().markForRemoval(ghost);
    }
    verb::emit("CREEP", 4.0F)(nullptr, nullptr);
    verb::chainOn("CREEP", "CH6CREEP")(nullptr, nullptr);
    verb::talk({{508, 120}})(nullptr, nullptr);
    runScript("LOCK SOUND howl.wav -V 90 CH6PUTMOVE2 REMOVESCRIPT");
}

void putFleeingGhost(SceneObject* owner, So_Addition* link) {
    verb::putGhost("X1", "GHOSTX1", "CH6WALK2")(owner, link);
    if (SceneObject* ghost = sceneManager().getSceneObject("GHOSTX1")) {
        kindle(*ghost, 460.0F, 0.6F, 0.75F, 1.0F);
    }
}

/// Puts out the lamps that the dark has reached.
void putLampsOut(float reached) {
    for (int i = 1; i <= lamps; ++i) {
        btVector3 place;
        const std::string name = "LAMP" + std::to_string(i);
        LightAdd* light = lightOf(sceneManager().getSceneObject(name));
        if (light != nullptr && placeOf(name, place) && place.x() < reached) {
            dim(*light);
        }
    }
}

/// The dark comes down to `CREEP1`, and from there along the passage to `CREEPDEST`.
void creep(SceneObject* owner, So_Addition* link) {
    btVector3 start;
    btVector3 end;
    PhysicsObject* dark = owner != nullptr ? owner->physicsObject : nullptr;
    if (dark == nullptr || !placeOf("CREEP1", start) || !placeOf("CREEPDEST", end)) {
        endLoop(owner, link);
        return;
    }
    const btVector3 place = dark->body->getWorldTransform().getOrigin();
    putLampsOut(place.x() + 120.0F);
    const bool isDown = std::abs(place.y() - start.y()) < 1.0F;
    if (!isDown) {
        dark->moveTowards(start.x(), start.y(), creepFall);
    } else if (dark->moveTowards(end.x(), end.y(), creepStep)) {
        sceneManager().markForRemoval(owner); // whoever hid from it may go on
    }
}

/// The loose bodies that are in the area now, as often as they touch it.
template <class Action>
void forEachInside(const SceneObject* area, Action action) {
    for (const btPersistentManifold* manifold : manifoldsOf(area)) {
        const Contact contact = contactOf(area, *manifold);
        btRigidBody* body = bodyOf(contact.other);
        if (body != nullptr && !body->isStaticObject() && contact.overlaps()) {
            action(*contact.other, *body);
        }
    }
}

btVector3 usualGravity() {
    return physicsModule().world->getGravity();
}

void pull(btRigidBody& body, const btVector3& gravity) {
    body.activate(true);
    body.setGravity(gravity);
}

/// In the owner everything falls up.
void fallUp(SceneObject* owner, So_Addition*) {
    forEachInside(owner, [](SceneObject&, btRigidBody& body) { pull(body, -usualGravity()); });
}

/// Down is down again, until the protagonist stands on something.
void fallDown(SceneObject* owner, So_Addition* link) {
    for (const SceneObject* object : sceneManager().objects) {
        btRigidBody* body = bodyOf(object);
        if (body != nullptr && !body->isStaticObject()) {
            pull(*body, usualGravity());
        }
    }
    const Player* player = sceneManager().player;
    if (player == nullptr || player->supportNow != nullptr) {
        endLoop(owner, link);
    }
}

/// In the owner things roll left and right by turns; who has legs stands.
void tiltThings(SceneObject* owner, So_Addition*) {
    const bool right = physicsModule().stepCount / tiltSteps % 2 == 0;
    const btVector3 aside(-usualGravity().y() * tilt * (right ? 1.0F : -1.0F), 0.0F, 0.0F);
    forEachInside(owner, [&aside](SceneObject& object, btRigidBody& body) {
        if (object.asPlayer() == nullptr) {
            pull(body, usualGravity() + aside);
        }
    });
}

/// The floor of the ball stops tilting, and the ball begins to stop.
void stopRolling(SceneObject*, So_Addition*) {
    if (SceneObject* floor = sceneManager().getSceneObject("TOCZ")) {
        sceneManager().markForRemoval(floor);
        verb::chainOn("KULA", "CH6UNTOCZ")(nullptr, nullptr);
        soundManager().playFlat("close.wav", 90);
    }
}

void slowDown(SceneObject* owner, So_Addition* link) {
    btRigidBody* body = bodyOf(owner);
    if (body == nullptr) {
        endLoop(owner, link);
        return;
    }
    pull(*body, usualGravity());
    body->setLinearVelocity(body->getLinearVelocity() * brake);
    body->setAngularVelocity(body->getAngularVelocity() * brake);
    if (body->getLinearVelocity().length() < atRest) {
        runScript("LOCK CH6UNTOCZE REMOVESCRIPT");
        endLoop(owner, link);
    }
}

/// The guide, where it waits for the ball, waits no longer.
void goOn(SceneObject*, So_Addition*) {
    if (SceneObject* ghost = sceneManager().getSceneObject("GHOST13a")) {
        rename(*ghost, "GHOST14");
    }
}

} // namespace

std::span<const NamedCommand> chapter06Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER6TEXT", verb::title(6)},
        NamedCommand{"CH6PUTMOVE", verb::putGhost("W1", "GHOST1", "CH6WALK")},
        NamedCommand{"CH6CGHOST",
                     verb::script("LOCK LOCKMOVEMENT SOUND mystery.wav DELAY 40 CH6PUTMOVE DELAY "
                                  "80 CH6EDLIG DELAY 60 UNLOCKMOVEMENT REMOVESCRIPT")},
        NamedCommand{"CH6WALK", verb::walk(route(), guideStep)},
        NamedCommand{"CH6UP", fallUp},
        NamedCommand{"CH6LR", tiltThings},
        NamedCommand{"CH6CREEP", creep},
        NamedCommand{"CH6DOWN", fallDown},
        NamedCommand{"CH6DOWNI", verb::script("CH6DOWN")},
        NamedCommand{"CH6SCENE", playScene},
        NamedCommand{"CH6WALK2PREP", prepareFlight},
        NamedCommand{"CH6KULTR", verb::all({verb::flatSound("stomp1.wav", 100),
                                            verb::chainOn("TOCZ", "CH6LR")})},
        NamedCommand{"CH6UNTOCZI", stopRolling},
        NamedCommand{"CH6UNTOCZ", slowDown},
        NamedCommand{"CH6UNTOCZE", verb::all({verb::dustAt("KULA", 0.0F, -30.0F, 30, "clunk2.wav"),
                                              verb::script("LOCK CH6CONTI REMOVESCRIPT")})},
        NamedCommand{"CH6PUTMOVE2", putFleeingGhost},
        NamedCommand{"CH6EDLIG", kindleGuide},
        NamedCommand{"CH6EDLIG2", kindleWarning},
        NamedCommand{"CH6CONTI", goOn},
        NamedCommand{"CH6DELIG2", dimOwner},
        NamedCommand{"CH6DELIG2I", dimGhost},
        NamedCommand{"CH6WALK2", verb::walk(flight(), fleeingStep)},
    };
    return table;
}
