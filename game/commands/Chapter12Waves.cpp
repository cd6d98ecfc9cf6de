#include "Chapter12Waves.h"

#include "Monsters.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/ForcefieldAdd.h"

#include <algorithm>

namespace waves {
namespace {

constexpr float liftPower = 1.05F; // multiples of gravity
constexpr float liftRate = 1.5F;   // particles a step

constexpr auto chain1 =
    "LOCK DELAY 100 SAVEGAME DELAY 200 CH12SPAWN1 DELAY 200 CH12SPAWN1 DELAY 200 CH12SPAWN1 "
    "DELAY 200 CH12SPAWN1 CH12SPAWN3 DELAY 400 CH12SPAWN1 CH12SPAWN2 CH12SPAWN3 CH12WAVE2START";
constexpr auto chain2 =
    "LOCK SAVEGAME DELAY 200 CH12SPAWN3 DELAY 200 CH12SPAWN3 DELAY 200 CH12SPAWN3 DELAY 200 "
    "CH12SPAWN3 CH12SPAWN3 DELAY 400 CH12SPAWN1 CH12SPAWN2 CH12SPAWN3 CH12WAVE3START";
constexpr auto chain3 =
    "LOCK SAVEGAME DELAY 200 CH12SPAWN1 CH12SPAWN1 CH12SPAWN1 CH12SPAWN1 DELAY 400 CH12SPAWN3 "
    "CH12SPAWN3 CH12SPAWN3 CH12SPAWN3 DELAY 400 CH12SPAWN1 CH12SPAWN2 CH12SPAWN3 DELAY 400 "
    "CH12SPAWN2 CH12SPAWN2 CH12SPAWN2 CH12SPAWN2 CH12SPAWN2 CH12SPAWN2 CH12WAVE4START";
constexpr auto chain4 =
    "LOCK SAVEGAME DELAY 100 CH12SPAWN1 CH12SPAWN2 CH12SPAWN3 DELAY 200 CH12SPAWN1 CH12SPAWN2 "
    "CH12SPAWN3 DELAY 200 CH12SPAWN1 CH12SPAWN2 CH12SPAWN3 DELAY 200 CH12SPAWN2 CH12SPAWN2 "
    "CH12SPAWN2 CH12SPAWN DELAY 200 CH12SPAWN1 CH12SPAWN1 CH12SPAWN2 CH12SPAWN3 CH12SPAWN3 "
    "CH12KONIECWAVEI";

void spawnAt(const std::string& object) {
    btVector3 place;
    if (placeOf(object, place)) {
        spawnMonster(place);
    }
}

/// Whatever is out of sight counts as well; what is left of the dead does not.
bool anyMonsterLeft() {
    const auto& objects = sceneManager().objects;
    return std::any_of(objects.begin(), objects.end(), [](const SceneObject* object) {
        return object->type == sceneObjectType::evilPlayer;
    });
}

/// Puts a chain on SPAWN1 in place of the one that the link is of.
void handOver(SceneObject* owner, So_Addition* link, const std::string& chain) {
    if (owner != nullptr) {
        owner->removeAddition(link);
    }
    verb::chainOn("SPAWN1", chain)(owner, link);
}

void beginWhenQuiet(SceneObject* owner, So_Addition* link, const std::string& chain) {
    if (!anyMonsterLeft() && sceneManager().player != nullptr) {
        handOver(owner, link, chain);
    }
}

} // namespace

void spawn1(SceneObject*, So_Addition*) {
    spawnAt("SPAWN1");
}
void spawn2(SceneObject*, So_Addition*) {
    spawnAt("SPAWN2");
}
void spawn3(SceneObject*, So_Addition*) {
    spawnAt("SPAWN3");
}

void start(SceneObject*, So_Addition*) {
    SceneObject* first = sceneManager().getSceneObject("SPAWN1");
    if (sceneManager().player != nullptr && first != nullptr) {
        first->addAddition(parseScript(chain1));
        runScript("CH12ZAMK");
    }
}

void startWave2(SceneObject* owner, So_Addition* link) {
    handOver(owner, link, "CH12WAVE2");
}
void startWave3(SceneObject* owner, So_Addition* link) {
    handOver(owner, link, "CH12WAVE3");
}
void startWave4(SceneObject* owner, So_Addition* link) {
    handOver(owner, link, "CH12WAVE4");
}
void startEnd(SceneObject* owner, So_Addition* link) {
    handOver(owner, link, "CH12KONIECWAVE");
}

void wave2(SceneObject* owner, So_Addition* link) {
    beginWhenQuiet(owner, link, chain2);
}
void wave3(SceneObject* owner, So_Addition* link) {
    beginWhenQuiet(owner, link, chain3);
}
void wave4(SceneObject* owner, So_Addition* link) {
    beginWhenQuiet(owner, link, chain4);
}

void end(SceneObject* owner, So_Addition*) {
    if (levelRunning == 0 || anyMonsterLeft()) {
        return;
    }
    if (SceneObject* lift = sceneManager().getSceneObject("GRAVITY")) {
        runScript("LOCK SOUND mystery.wav REMOVESCRIPT");
        verb::emit("GRAVITY", liftRate)(nullptr, nullptr);
        lift->addAddition(new ForcefieldAdd(liftPower));
        lift->addAddition(parseScript("SOUNDSOURCE mysteryloop2.wav -V 128"));
    }
    if (owner != nullptr) {
        owner->clearAdditions();
    }
}

} // namespace waves
