#include "LittleOnes.h"

#include "GhostWalk.h"
#include "NamedObjects.h"
#include "Random.h"
#include "Verbs.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/Player.h"
#include "sceneManager/ProtagonistParts.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/Contacts.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr float sightX = 260.0F; // world units to each side
constexpr float sightY = 130.0F;
constexpr std::uint32_t bitePause = 20; // steps
constexpr int biteDamage = 34;          // of 100 hit points
constexpr unsigned deathBlood = 40;
constexpr int deathCries = 3;
constexpr int lineSteps = 150;
constexpr int speakersAtOnce = 3;    // stand together, and take turns
constexpr float blockedShare = 0.3F; // of its speed that tells of something in the way

// A lamp that shows who carries it, and is too dim to hurt a monster.
constexpr float lampReach = 62.0F;
constexpr float lampRed = 0.36F;
constexpr float lampGreen = 0.17F;
constexpr float lampBlue = 0.04F;

constexpr float stridePace = 4.0F; // steps a radian
constexpr float strideReach = 2.5F;
constexpr float strideLift = 3.0F;
constexpr float breathPace = 11.0F;

std::string calmName(int number) {
    return "OSOBA" + std::to_string(number);
}

/// The marker gives way to the one who waits there.
void appear(SceneObject& marker, So_Addition* link, int number, float speed) {
    SceneParts parts = makeProtagonistParts();
    parts.type = sceneObjectType::plain; // becomes that of any character
    auto* person = new Player(parts);
    putAt(*person, placeOf(marker));
    person->statistics.speed = speed;
    person->addAddition(new ObjectNameAdd(calmName(number)));
    person->addAddition(parseScript("CH10PERSON" + std::to_string(number)));
    kindle(*person, lampReach, lampRed, lampGreen, lampBlue);
    sceneManager().addSceneObject(person);
    marker.removeAddition(link);
    sceneManager().markForRemoval(&marker);
}

/// The nearest monster in sight, or null.
const SceneObject* threatTo(const Player& person) {
    const SceneObject* nearest = nullptr;
    float distance = sightX;
    for (const SceneObject* object : sceneManager().getActors()) {
        if (object->type != sceneObjectType::evilPlayer) {
            continue;
        }
        const btVector3 way = placeOf(*object) - placeOf(person);
        if (std::abs(way.x()) < distance && std::abs(way.y()) < sightY) {
            distance = std::abs(way.x());
            nearest = object;
        }
    }
    return nearest;
}

/// Away from the monster, and up at what is in the way.
void run(Player& person, const SceneObject& threat) {
    if (person.statistics.speed == 0.0F) {
        return;
    }
    const bool left = placeOf(person).x() < placeOf(threat).x();
    const std::uint32_t key = left ? playerKey::left : playerKey::right;
    const float speed = std::abs(person.physicsObject->body->getLinearVelocity().x());
    const bool blocked = (person.keys & key) != 0 && speed < blockedShare * person.statistics.speed;
    person.stopKeys();
    person.keys |= key | (blocked ? playerKey::up : 0);
}

/// At the first sight of a monster.
void cryOnce(Player& person, int number, int line) {
    if (person.hasName(calmName(number))) {
        const int turn = (number - 1) % speakersAtOnce * lineSteps;
        verb::speak(person, {{0, turn}, {line, lineSteps}});
        rename(person, "ZBIEG" + std::to_string(number));
    }
}

bool touchesMonster(const Player& person) {
    const auto manifolds = manifoldsOf(&person);
    return std::any_of(manifolds.begin(), manifolds.end(), [&](const btPersistentManifold* one) {
        const Contact contact = contactOf(&person, *one);
        return contact.other != nullptr && contact.other->type == sceneObjectType::evilPlayer &&
               contact.pointsWithin(1.0) > 0;
    });
}

void sufferBites(Player& person) {
    const bool isTime = physicsModule().stepCount % bitePause == 0;
    if (isTime && touchesMonster(person)) {
        person.hurt(biteDamage);
        soundManager().playAt("chomp.wav", placeOf(person));
        graphicsModule().spawnBlood(placeOf(person), biteDamage / 4);
    }
    if (person.statistics.health < 0) { // and dies in this step
        soundManager().playAt("dying" + std::to_string(drawRandom() % deathCries) + ".wav",
                              placeOf(person));
        graphicsModule().spawnBlood(placeOf(person), deathBlood);
    }
}

void animate(Player& person) {
    if (person.graphicsObject == nullptr || !ProtagonistParts::fit(*person.graphicsObject)) {
        return;
    }
    ProtagonistParts parts(*person.graphicsObject);
    ProtagonistPose pose;
    const auto now = static_cast<float>(physicsModule().stepCount);
    const bool left = (person.keys & playerKey::left) != 0;
    if (left || (person.keys & playerKey::right) != 0) {
        if (left != parts.looksLeft()) {
            parts.look(left);
        }
        const float lift = strideLift * std::sin(now / stridePace);
        const float reach = strideReach * std::cos(now / stridePace);
        pose.backLeg += btVector3(-reach, -lift, 0.0F);
        pose.frontLeg += btVector3(reach, lift, 0.0F);
    }
    pose.bob = std::sin(now / breathPace);
    pose.arm = parts.looksLeft() ? 1.2F : -1.2F; // holds the lamp up
    parts.take(pose);
}

} // namespace

ScriptCallback verb::littleOne(int number, int line, float speed) {
    return [=](SceneObject* owner, So_Addition* link) {
        if (owner == nullptr || owner->physicsObject == nullptr) {
            return;
        }
        Player* person = owner->asPlayer();
        if (person == nullptr) {
            appear(*owner, link, number, speed);
            return;
        }
        if (const SceneObject* threat = threatTo(*person)) {
            cryOnce(*person, number, line);
            run(*person, *threat);
        } else {
            person->stopKeys();
        }
        sufferBites(*person);
        animate(*person);
    };
}
