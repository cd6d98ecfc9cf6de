#include "Chapter08Flight.h"
#include "CommandTables.h"
#include "GhostWalk.h"
#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "inputModule/GameInput.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/Contacts.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>
#include <string>

// Out of body: a plate that asks for more weight than anything here has, a field that gives it, and
// a ghost that knows where to lie down. What happens then is the flight's.

namespace {

using namespace verb;

constexpr float heavyMass = 18.0F;  // of what the field holds
constexpr float usualMass = 1.4F;   // of the three weights outside of it
constexpr float enoughMass = 15.0F; // for the plate
constexpr float liftStep = 2.0F;    // of the gate, units a step
constexpr float fallStep = 1.5F;
constexpr float restSpeed = 5.0F; // units a second that still are rest
constexpr float ghostStep = 1.5F; // units a step

std::vector<GhostStage> route() {
    return {
        {"GHOST1", nullptr, "GHOST2", 200.0F, {520, 180}},
        {"GHOST2", "W2", "GHOST3", 230.0F, {521, 220}},
        {"GHOST3", "W3", "GHOST4", 0.0F, {}},
        {"GHOST4", "W4", "GHOST5", 200.0F, {215, 160}},
        {"GHOST5", nullptr, "GHOSTREST", 160.0F, {216, 160}},
        {"GHOSTREST", nullptr, "GHOSTREST", 0.0F, {}},
    };
}

bool isLoose(const SceneObject* object) {
    const btRigidBody* body = bodyOf(object);
    return body != nullptr && !body->isStaticObject();
}

float massOf(const btRigidBody& body) {
    return body.getInvMass() > 0.0F ? 1.0F / body.getInvMass() : 0.0F;
}

void setMass(btRigidBody& body, float mass) {
    btVector3 inertia;
    body.getCollisionShape()->calculateLocalInertia(mass, inertia);
    body.setMassProps(mass, inertia);
    body.updateInertiaTensor();
    body.activate(true);
}

/// The weights are light again where the field does not reach them.
void relieveWeights(const SceneObject* field) {
    for (const char* name : {"MASA1", "MASA2", "MASA3"}) {
        const SceneObject* weight = sceneManager().getSceneObject(name);
        if (isLoose(weight) && massOf(*bodyOf(weight)) > enoughMass &&
            touchWithin(field, name) == nullptr) {
            setMass(*bodyOf(weight), usualMass);
        }
    }
}

/// Stands on the field: what lies in it, and is in nobody's hands, is as heavy as a bell.
void massUp(SceneObject* owner, So_Addition*) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        SceneObject* other = contactOf(owner, *manifold).other;
        if (isLoose(other) && other->asPlayer() == nullptr && firstJoint(other) == nullptr &&
            contactOf(owner, *manifold).overlaps() && massOf(*bodyOf(other)) < heavyMass) {
            setMass(*bodyOf(other), heavyMass);
            zap(bodyOf(other)->getWorldTransform().getOrigin());
        }
    }
    relieveWeights(owner);
}

/// Whether what rests on the plate is heavy enough.
bool isPressed(const SceneObject* plate) {
    float mass = 0.0F;
    for (const btPersistentManifold* manifold : manifoldsOf(plate)) {
        const Contact contact = contactOf(plate, *manifold);
        mass += isLoose(contact.other) && contact.comesWithin(1.0F) ? massOf(*bodyOf(contact.other))
                                                                    : 0.0F;
    }
    return mass > enoughMass;
}

/// The gate goes on towards the place of an object.
void moveGate(const char* place, float step) {
    btVector3 goal;
    PhysicsObject* gate = physicsOf("BRAMKA");
    if (gate != nullptr && placeOf(place, goal)) {
        gate->moveTowards(goal.x(), goal.y(), step);
    }
}

/// Stands on the plate: opens the gate under enough weight.
void openUnderWeight(SceneObject* owner, So_Addition*) {
    if (isPressed(owner)) {
        moveGate("BRAMKADEST", liftStep);
        colourLight("BU", 0.8F, 0.4F, 1.0F)(nullptr, nullptr);
    }
}

/// Stands on the plate: shuts the gate without it, but not on the protagonist.
void shutWithoutWeight(SceneObject* owner, So_Addition*) {
    btVector3 gate;
    if (isPressed(owner) || !placeOf("BRAMKAPOS", gate)) {
        return;
    }
    colourLight("BU", 0.25F, 0.1F, 0.35F)(nullptr, nullptr);
    if (!isOverProtagonist(gate)) {
        moveGate("BRAMKAPOS", fallStep);
    }
}

/// Whoever lies down at LOZE, and still has legs, leaves them there.
void checkForRest(SceneObject*, So_Addition*) {
    const Player* player = sceneManager().player;
    if (movementLocked == 0 && player != nullptr && player->type == sceneObjectType::testPlayer &&
        player->supportNow != nullptr && player->supportNow->hasName("LOZE") &&
        bodyOf(player)->getLinearVelocity().length() < restSpeed) {
        runScript("LOCK CH8STARTMED REMOVESCRIPT");
    }
}

/// Stands on the ghost that leads to the place to lie down, and watches over who lies there. After
/// a load it is this that sends the light out again.
void leadToRest(SceneObject* owner, So_Addition* link) {
    static const ScriptCallback walkRoute = walk(route(), ghostStep);
    walkRoute(owner, link);
    if (owner != nullptr && owner->hasName("GHOSTREST")) {
        checkForRest(owner, link);
    }
}

/// The legs stay locked: what is steered from here on has none.
void startFlight(SceneObject*, So_Addition*) {
    if (Player* ghost = findGhost()) {
        speak(*ghost, {{217, 160}, {218, 180}, {219, 140}, {220, 200}});
    }
    runScript(
        "LOCK LOCKMOVEMENT SOUND mystery.wav DELAY 120 FADEALLTOBLUE SOUND breath.wav -V 90 "
        "DELAY 110 CH8CREATETHING FADEALLTONORMAL DELAY 60 CH8CONTROLTHINGI DELAY 40 CH8SETSHIELD "
        "REMOVESCRIPT");
}

/// Stands on the area of a lamp: the first touch of the light wakes it.
ScriptCallback wakeBy(const std::string& command) {
    return [command](SceneObject* owner, So_Addition* link) {
        if (touchWithin(owner, "THING") != nullptr) {
            runScript("LOCK " + command + " REMOVESCRIPT");
            endLoop(owner, link);
        }
    };
}

/// One shield less.
ScriptCallback breakShield(int number, std::vector<Speech> lines) {
    const std::string digit = std::to_string(number);
    return all({chainOn("SHIELD" + digit, "CH8UNSHIELD"), emit("S" + digit, 0.6F),
                colourLight("S" + digit, 1.0F, 0.9F, 1.0F), flatSound("minibell.wav", 128),
                flatSound("syk" + digit + ".wav", 90), interrupt(std::move(lines))});
}

} // namespace

std::span<const NamedCommand> chapter08Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER8TEXT", verb::title(8)},
        NamedCommand{"CH8BUUNREL", shutWithoutWeight},
        NamedCommand{"CH8MASSUP", massUp},
        NamedCommand{"CH8BUREL", openUnderWeight},
        NamedCommand{"CH8TEL", flight::passRift},
        NamedCommand{"CH8UNSHIELD", flight::unshield},
        NamedCommand{"CH8SETSHIELD", flight::setShield},
        NamedCommand{"CH8ENEMYBEH", flight::behaveAsPrey},
        NamedCommand{"CH8GO1", breakShield(1, {{233, 90}, {0, 20}, {522, 180}})},
        NamedCommand{"CH8GO2", breakShield(2, {{234, 90}, {0, 20}, {231, 180}})},
        NamedCommand{"CH8GO3", all({breakShield(3, {{235, 90}}),
                                    script("LOCK DELAY 90 CH8WON REMOVESCRIPT")})},
        NamedCommand{"CH8WON", all({talk({{0, 20}, {238, 160}}), ambient(0.2F, 0.16F, 0.26F),
                                    stopSound("mysteryloop1.wav"), flatSound("anxiety4.wav", 90)})},
        NamedCommand{"CH8GHOSTHELP", putGhost("W1", "GHOST1", "CH8GHOST")},
        NamedCommand{"CH8GHOST", leadToRest},
        NamedCommand{"CH8CHECKFORREST", checkForRest},
        NamedCommand{"CH8CREATETHING", flight::createThing},
        NamedCommand{"CH8STARTMED", startFlight},
        NamedCommand{"CH8CONTROLTHINGI", script("CH8CONTROLTHING")},
        NamedCommand{"CH8CONTROLTHING", flight::controlThing},
        NamedCommand{"CH8S1", wakeBy("CH8GO1")},
        NamedCommand{"CH8S2", wakeBy("CH8GO2")},
        NamedCommand{"CH8S3", wakeBy("CH8GO3")},
    };
    return table;
}
