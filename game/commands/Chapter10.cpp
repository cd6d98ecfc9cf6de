#include "CommandTables.h"
#include "GhostWalk.h"
#include "LittleOnes.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
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

// The other side: the user is the monster. Lamps are deadly, stones put them out, and what is shut
// gives way to a pack.

namespace {

using namespace verb;

constexpr float stoneImpulse = 160.0F; // units a second, to the right
constexpr unsigned stoneDust = 30;

constexpr float shutStep = 5.6F;   // units a step
constexpr float gateWidth = 75.0F; // units to each side in which a monster beats on the gate
constexpr float gateHeight = 130.0F;
constexpr std::uint32_t beatPause = 50; // steps
constexpr float beatLift = 3.0F;        // units for each monster
constexpr unsigned beatDust = 25;

constexpr std::uint32_t flickPeriod = 330; // steps
constexpr std::uint32_t flickDark = 190;   // of these
constexpr std::uint32_t flickFade = 24;    // steps from dark to bright
constexpr std::uint32_t flickWarning = 40; // steps before that
constexpr float hoodStep = 0.6F;           // units a step
constexpr float flickGreen = 0.88F;        // shares of red
constexpr float flickBlue = 0.7F;

EvilPlayer* leader() {
    return EvilPlayer::of(sceneManager().player);
}

/// The first little ones in sight.
void scent(SceneObject* owner, So_Addition* link) {
    if (EvilPlayer* monster = leader()) {
        monster->lightEyes();
        monster->growl();
        script("LOCK SOUND anxiety1.wav -V 100 REMOVESCRIPT")(owner, link);
        talk({{273, 140}, {0, 30}, {274, 180}})(owner, link);
    }
}

/// The stones lose what holds them, and get a push.
void rollStones(SceneObject* owner, So_Addition* link) {
    bool any = false;
    for (const char* name : {"SKALA1", "SKALA2", "SKALA3"}) {
        btRigidBody* stone = bodyOf(sceneManager().getSceneObject(name));
        if (stone == nullptr || !releaseJoint(name)) {
            continue;
        }
        any = true;
        stone->activate(true);
        stone->setLinearVelocity(btVector3(stoneImpulse, 0.0F, 0.0F));
        graphicsModule().spawnDust(stone->getWorldTransform().getOrigin(), stoneDust);
        soundManager().playAt("stomp1.wav", stone->getWorldTransform().getOrigin());
    }
    if (any) {
        talk({{276, 160}})(owner, link);
    }
}

/// Somebody behind the gate has seen what comes.
void shutGate(SceneObject* owner, So_Addition* link) {
    chainOn("WROTA", "CH10WROTA1")(owner, link);
    SceneObject* person = sceneManager().getSceneObject("OSOBA10");
    if (Player* speaker = person != nullptr ? person->asPlayer() : nullptr) {
        speak(*speaker, {{303, 160}});
    }
}

/// Stands on the gate, which falls to WROTADEST, but not on the protagonist; then it can be beaten
/// on.
void dropGate(SceneObject* owner, So_Addition* link) {
    btVector3 shut;
    if (bodyOf(owner) == nullptr || !placeOf("WROTADEST", shut)) {
        endLoop(owner, link);
    } else if (!isOverProtagonist(shut) &&
               owner->physicsObject->moveTowards(shut.x(), shut.y(), shutStep)) {
        endLoop(owner, link);
        owner->addAddition(parseScript("CH10WROTA2"));
        dustAt("WROTA", 0.0F, -70.0F, stoneDust, "close.wav")(owner, link);
        talk({{0, 40}, {277, 180}, {0, 30}, {275, 120}})(owner, link);
    }
}

std::ptrdiff_t monstersAt(const btVector3& place) {
    const auto& objects = sceneManager().objects;
    return std::count_if(objects.begin(), objects.end(), [&](const SceneObject* object) {
        const btRigidBody* body = bodyOf(object);
        if (object->type != sceneObjectType::evilPlayer || body == nullptr) {
            return false;
        }
        const btVector3 way = body->getWorldTransform().getOrigin() - place;
        return std::abs(way.x()) < gateWidth && std::abs(way.y()) < gateHeight;
    });
}

/// Stands on the gate. At each beat every monster before it lifts it a little, up to WROTAUP; how
/// far it is, a saved game keeps.
void beatGate(SceneObject* owner, So_Addition* link) {
    const btRigidBody* gate = bodyOf(owner);
    btVector3 shut;
    btVector3 open;
    if (gate == nullptr || !placeOf("WROTADEST", shut) || !placeOf("WROTAUP", open)) {
        endLoop(owner, link);
        return;
    }
    const std::ptrdiff_t monsters = monstersAt(shut);
    if (monsters == 0 || physicsModule().stepCount % beatPause != 0) {
        return;
    }
    graphicsModule().spawnDust(gate->getWorldTransform().getOrigin(), beatDust);
    soundManager().playAt("stomp.wav", gate->getWorldTransform().getOrigin());
    const float lift = beatLift * static_cast<float>(monsters);
    if (owner->physicsObject->moveTowards(open.x(), open.y(), lift)) {
        endLoop(owner, link);
        soundManager().playAt("clunk1.wav", open);
    }
}

/// How bright a bad lamp is, 0 to 1.
float flicker(std::uint32_t now) {
    const std::uint32_t phase = now % flickPeriod;
    if (phase < flickDark) {
        return 0.0F;
    }
    return std::min(static_cast<float>(phase - flickDark) / static_cast<float>(flickFade), 1.0F);
}

/// Stands on a lamp that goes out for a while, again and again. Its hood is drawn up to LAMPAGORA
/// while it is dark, and comes down to LAMPADOL before it shines.
void flickLamp(SceneObject* owner, So_Addition*) {
    auto* light = owner != nullptr
                      ? static_cast<LightAdd*>(owner->findAddition(AdditionType::light))
                      : nullptr;
    if (light == nullptr || bodyOf(owner) == nullptr) {
        return;
    }
    const std::uint32_t phase = physicsModule().stepCount % flickPeriod;
    const btVector3& place = bodyOf(owner)->getWorldTransform().getOrigin();
    if (phase == 0) {
        soundManager().playAt("switchoff.wav", place);
    } else if (phase == flickDark) {
        zap(place);
        graphicsModule().spawnSparks(place, 12);
    }
    btVector3 goal;
    if (placeOf(phase < flickDark - flickWarning ? "LAMPAGORA" : "LAMPADOL", goal)) {
        owner->physicsObject->moveTowards(goal.x(), goal.y(), hoodStep);
    }
    LightProperties look = light->getProperties();
    look.red = flicker(phase);
    look.green = look.red * flickGreen;
    look.blue = look.red * flickBlue;
    light->setProperties(look);
}

/// The last of them lights the great lamp. It reaches everybody but the leader, who is to see it.
void lightGreatLamp(SceneObject* owner, So_Addition* link) {
    EvilPlayer* monster = leader();
    if (monster == nullptr) {
        return;
    }
    if (So_Addition* reader = monster->findAddition(AdditionType::lightReader)) {
        monster->removeAddition(reader);
    }
    btVector3 lamp;
    if (placeOf("LAMPION", lamp)) {
        graphicsModule().spawnSparks(lamp, 60);
        zap(lamp);
    }
    all({colourLight("LAMPION", 1.0F, 0.94F, 0.82F), ambient(0.55F, 0.52F, 0.46F),
         interrupt({{0, 60}, {278, 260}}),
         script("LOCK LOCKMOVEMENT SOUND kick1.wav DELAY 220 SOUND anxiety8.wav FADEALLTOWHITE "
                "DELAY 160 CH10CHECKDEATH REMOVESCRIPT")})(owner, link);
}

} // namespace

std::span<const NamedCommand> chapter10Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER10TEXT", verb::title(10)},
        NamedCommand{"CH10SKALY", rollStones},
        NamedCommand{"CH10A1", scent},
        NamedCommand{"CH10WROTA", shutGate},
        NamedCommand{"CH10WROTA1", dropGate},
        NamedCommand{"CH10WROTA2", beatGate},
        NamedCommand{"CH10FLICK", flickLamp},
        NamedCommand{"CH10CHECKDEATH", script("LOCK CH10END REMOVESCRIPT")},
        NamedCommand{"CH10DZ", lightGreatLamp},
        NamedCommand{"CH10PERSON1", littleOne(1, 294, 170.0F)},
        NamedCommand{"CH10PERSON2", littleOne(2, 295, 185.0F)},
        NamedCommand{"CH10PERSON3", littleOne(3, 296, 160.0F)},
        NamedCommand{"CH10PERSON4", littleOne(4, 297, 150.0F)},
        NamedCommand{"CH10PERSON5", littleOne(5, 298, 180.0F)},
        NamedCommand{"CH10PERSON6", littleOne(6, 299, 165.0F)},
        NamedCommand{"CH10PERSON7", littleOne(7, 300, 175.0F)},
        NamedCommand{"CH10PERSON8", littleOne(8, 301, 200.0F)},
        NamedCommand{"CH10PERSON9", littleOne(9, 302, 130.0F)},
        NamedCommand{"CH10PERSON10", littleOne(10, 303, 170.0F)},
        NamedCommand{"CH10PERSON11", littleOne(11, 304, 180.0F)},
        NamedCommand{"CH10PERSON12", littleOne(12, 305, 150.0F)},
        NamedCommand{"CH10PERSON13", littleOne(13, 306, 0.0F)},
    };
    return table;
}
