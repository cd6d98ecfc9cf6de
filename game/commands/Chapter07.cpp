#include "CommandTables.h"
#include "GhostWalk.h"
#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/Contacts.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>

// The machine: teleporters, a lift with a toggle, a trap, sand, and somebody else's strength.

namespace {

constexpr float sandBrake = 0.88F;      // factor on the speed of what wades, a step
constexpr float greatestSpeed = 260.0F; // of what is held back, units a second
constexpr float liftX = 2474.0F;
constexpr float liftHigh = 1000.0F;
constexpr float liftLow = 950.0F;
constexpr float liftStep = 1.2F; // units a step
constexpr float slabStep = 1.4F; // of slabs that open a way
constexpr float pushStep = 1.5F; // of the block that gives way to strength
constexpr float strongPush = 40.0F;
constexpr float strongSpeed = 400.0F;
constexpr float ghostStep = 1.5F;

bool isStrong(const Player& character) {
    return character.statistics.push >= strongPush;
}

/// The strength that lets a character push the machine's blocks.
void strengthen(SceneObject* owner, So_Addition*) {
    if (Player* character = owner != nullptr ? owner->asPlayer() : nullptr) {
        character->statistics.push = strongPush;
        character->statistics.speed = strongSpeed;
    }
}

/// What wades in the owner is slow.
void brakeInside(SceneObject* owner, So_Addition*) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        const Contact contact = contactOf(owner, *manifold);
        btRigidBody* body = bodyOf(contact.other);
        if (body != nullptr && !body->isStaticObject() && contact.overlaps()) {
            const btVector3 velocity = body->getLinearVelocity();
            body->setLinearVelocity(btVector3(velocity.x() * sandBrake, velocity.y(), 0.0F));
        }
    }
}

void capSpeed(SceneObject* owner, So_Addition*) {
    btRigidBody* body = bodyOf(owner);
    if (body != nullptr && body->getLinearVelocity().length() > greatestSpeed) {
        body->setLinearVelocity(body->getLinearVelocity().normalized() * greatestSpeed);
    }
}

/// The protagonist is elsewhere, with a crack here and there.
void teleportTo(const std::string& place) {
    Player* player = sceneManager().player;
    btVector3 destination;
    if (player == nullptr || !placeOf(place, destination)) {
        return;
    }
    emptyHands(*player);
    btRigidBody& body = *player->physicsObject->body;
    graphicsModule().spawnSparks(body.getWorldTransform().getOrigin(), 60);
    body.setLinearVelocity(btVector3(0.0F, 0.0F, 0.0F));
    putAt(*player, destination);
    graphicsModule().spawnSparks(destination, 60);
    graphicsModule().camera->setX(destination.x());
    graphicsModule().camera->setY(destination.y());
    zap(destination);
}

ScriptCallback teleporter(std::string place) {
    return [place = std::move(place)](SceneObject*, So_Addition*) { teleportTo(place); };
}

/// The way out, once it has power: a checkpoint lies behind it.
void leaveByTeleporter(SceneObject* owner, So_Addition*) {
    if (touchesProtagonist(owner, 1.0)) {
        teleportTo("WYTELDEST");
        runScript("LOCK DELAY 30 SAVEGAME REMOVESCRIPT");
    }
}

/// The owner waits for energy, and gives it to the way out.
void takeEnergy(SceneObject* owner, So_Addition* link) {
    SceneObject* energy = touchWithin(owner, "ENERGIA");
    if (energy == nullptr) {
        return;
    }
    const btVector3 place = owner->physicsObject->body->getWorldTransform().getOrigin();
    zap(place);
    graphicsModule().spawnSparks(place, 80);
    runScript("LOCK CH7WYTELI REMOVESCRIPT");
    endLoop(owner, link);
}

/// A word that, as a chain on the slab, moves it to its place, and from anywhere else puts itself
/// on the slab, so that a saved game goes on with it.
ScriptCallback openSlab(const std::string& slab, const std::string& place,
                        const std::string& word) {
    return [=](SceneObject* owner, So_Addition* link) {
        if (owner == nullptr || !owner->hasName(slab)) {
            verb::chainOn(slab, word)(owner, link);
            return;
        }
        btVector3 target;
        if (!placeOf(place, target) ||
            owner->physicsObject->moveTowards(target.x(), target.y(), slabStep)) {
            endLoop(owner, link);
        }
    };
}

void ride(SceneObject* owner, So_Addition*) {
    if (owner != nullptr && owner->physicsObject != nullptr) {
        owner->physicsObject->moveTowards(liftX, chapterFlags[0] != 0 ? liftHigh : liftLow,
                                          liftStep);
    }
}

void toggleLift(SceneObject*, So_Addition*) {
    chapterFlags[0] = chapterFlags[0] != 0 ? 0 : 1;
}

std::vector<GhostStage> route() {
    return {
        {"GHOST1", nullptr, "GHOST2", 0.0F, {513, 200}},
        {"GHOST2", "G2", "GHOST3", 0.0F, {514, 200}},
        {"GHOST3", "G3", "GHOST4", 0.0F, {}},
        {"GHOST4", "G4", "GHOST5", 0.0F, {516, 200}, "LOCK CH7UNTRAP REMOVESCRIPT"},
        {"GHOST5", "G5", "GHOST6", 0.0F, {}},
        {"GHOST6", "G6", "GHOST7", 300.0F, {519, 180}},
        {"GHOST7", "G7", "GHOST", 0.0F, {}},
    };
}

/// The ghost passes through the protagonist and leaves it stronger, then opens the trap.
ScriptCallback leadOut() {
    return [walk = verb::walk(route(), ghostStep)](SceneObject* owner, So_Addition* link) {
        Player* player = sceneManager().player;
        if (owner != nullptr && player != nullptr && owner->hasName("GHOST4") &&
            !isStrong(*player)) {
            player->addAddition(parseScript("LOCK CH7STRONG"));
            burst(owner, 180.0F, 120.0F);
            verb::speak(*player, {{515, 160}});
        }
        walk(owner, link);
    };
}

void createGhost(SceneObject* owner, So_Addition* link) {
    if (findGhost() == nullptr) {
        verb::putGhost("G1", "GHOST1", "CH7GHOST")(owner, link);
        if (Player* ghost = findGhost()) {
            kindle(*ghost, 420.0F, 0.6F, 0.75F, 1.0F);
        }
    }
}

/// The owner gives way to the right while somebody strong leans on it.
void giveWay(SceneObject* owner, So_Addition* link) {
    const Player* player = sceneManager().player;
    btVector3 target;
    if (owner == nullptr || owner->physicsObject == nullptr || !placeOf("SLIDEDEST", target)) {
        endLoop(owner, link);
        return;
    }
    const bool pushed = touchesProtagonist(owner, 1.0) && isStrong(*player) &&
                        (player->keys & playerKey::right) != 0;
    if (pushed && owner->physicsObject->moveTowards(target.x(), target.y(), pushStep)) {
        endLoop(owner, link);
    }
}

} // namespace

std::span<const NamedCommand> chapter07Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER7TEXT", verb::title(7)},
        NamedCommand{"CH7DAMP", brakeInside},
        NamedCommand{"CH7CAPVEL", capSpeed},
        NamedCommand{"CH7TELE", teleporter("TEL")},
        NamedCommand{"CH7TELE1", teleporter("TEL1")},
        NamedCommand{"CH7LOCKMECH",
                     verb::script("LOCK SETLOCK TOGLE SOUND clunk2.wav REMOVESCRIPT")},
        NamedCommand{"CH7ZSYP", verb::all({verb::release("KLAPA"), verb::emit("ZSYP", 0.9F),
                                           verb::dustAt("ZSYP", 0.0F, -20.0F, 60, "quake.wav")})},
        NamedCommand{"CH7PASSS", openSlab("PASS", "PASSDEST", "CH7PASSS")},
        NamedCommand{"CH7JAZDA", ride},
        NamedCommand{"CH7TOGLE", toggleLift},
        NamedCommand{"CH7WYTELI",
                     verb::all({verb::chainOn("WYTEL", "CH7WYTEL"),
                                verb::colourLight("WYTEL", 1.0F, 0.8F, 0.4F),
                                verb::emit("WYTEL", 0.8F), verb::flatSound("mystery.wav", 100)})},
        NamedCommand{"CH7WYTEL", leaveByTeleporter},
        NamedCommand{"CH7ENE", takeEnergy},
        NamedCommand{"CH7ZAPAD", verb::all({verb::release("ZAPAD"),
                                            verb::dustAt("ZAPAD", 0.0F, 0.0F, 50, "clunk1.wav")})},
        NamedCommand{"CH7TRAPED", verb::all({verb::interrupt({{512, 150}}),
                                             verb::script("LOCK SOUND close.wav -V 90 CH7LOCKMECH "
                                                          "REMOVESCRIPT")})},
        NamedCommand{"CH7CRGHOST", createGhost},
        NamedCommand{"CH7STRONG", strengthen},
        NamedCommand{"CH7GHOST", leadOut()},
        NamedCommand{"CH7UNTRAP", openSlab("TRAP", "TRAPDEST", "CH7UNTRAP")},
        NamedCommand{"CH7SLIDE", giveWay},
    };
    return table;
}
