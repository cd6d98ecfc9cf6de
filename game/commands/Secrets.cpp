#include "game/flow/Secrets.h"
#include "CommandTables.h"
#include "Language.h"
#include "Monsters.h"
#include "NamedObjects.h"
#include "Random.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Contacts.h"

#include <LinearMath/btVector3.h>

#include <algorithm>
#include <array>

// The words of the fifteen secrets, and of those who guard them.

namespace {

constexpr int deadlyDamage = 101;
constexpr float trapSpeed = 160.0F;      // of the monster, world units a second
constexpr std::ptrdiff_t fewEnough = 10; // monsters left

ScriptCallback secret(int chapter) {
    return [chapter](SceneObject*, So_Addition*) { findSecret(chapter); };
}

/// How a monster talks to itself.
struct Talk {
    int period; ///< One step in so many, on average, it begins.
    bool growls;
    int first; ///< Number of the first line in the language table.
    int count; ///< Of lines to choose from.
};

/// A loop for the object of a monster. A single line costs no draw.
ScriptCallback mutter(const Talk& talk) {
    return [talk](SceneObject* owner, So_Addition*) {
        Player* monster = owner != nullptr ? owner->asPlayer() : nullptr;
        if (monster == nullptr || monster->isSpeaking() || drawRandom() % talk.period != 0) {
            return;
        }
        if (EvilPlayer* growling = talk.growls ? EvilPlayer::of(owner) : nullptr) {
            growling->growl();
        }
        const int choice = talk.count > 1 ? drawRandom() % talk.count : 0;
        monster->say(text(talk.first + choice), 200);
        monster->say(" ", 100);
    };
}

void springTrap() {
    if (Player* player = sceneManager().player) {
        verb::speak(*player, {{0, 200}, {381, 100}, {0, 200}, {382, 200}});
    }
    runScript("LOCK LOCKMOVEMENT DELAY 300 UNLOCKMOVEMENT DELAY 300 SECRET6SPAWN REMOVESCRIPT");
}

void findTrappedSecret(SceneObject*, So_Addition*) {
    findSecret(6, springTrap);
}

void spawnTrapMonster(SceneObject*, So_Addition*) {
    btVector3 place;
    if (placeOf("SECRETSPAWN", place)) {
        addMonster(place, trapSpeed);
    }
    runScript("LOCK SOUND kick2.wav SOUND anxiety1.wav REMOVESCRIPT");
}

void killPlayer(SceneObject* owner, So_Addition*) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        SceneObject* other = contactOf(owner, *manifold).other;
        if (other != nullptr && other == sceneManager().player) {
            other->hurt(deadlyDamage);
        }
    }
}

/// The user, a monster as well, is none of them.
void countMonsters(SceneObject* owner, So_Addition*) {
    const auto& objects = sceneManager().objects;
    const auto left = std::count_if(objects.begin(), objects.end(), [](const SceneObject* object) {
        return object->type == sceneObjectType::evilPlayer && object != sceneManager().player;
    });
    if (left <= fewEnough) {
        runScript("LOCK SECRET10 REMOVESCRIPT");
        if (owner != nullptr) {
            owner->clearAdditions();
        }
    }
}

void talkWithOldOne(SceneObject*, So_Addition*) {
    SceneObject* oldOne = sceneManager().getSceneObject("OLDCHAR");
    if (Player* character = oldOne != nullptr ? oldOne->asPlayer() : nullptr) {
        verb::speak(*character, {{379, 200}});
    }
    if (Player* player = sceneManager().player) {
        verb::speak(*player, {{0, 150}, {380, 200}});
    }
}

} // namespace

std::span<const NamedCommand> secretCommands() {
    static const std::array table{
        NamedCommand{"SECRET15TALK", talkWithOldOne},
        NamedCommand{"SECRET15", secret(15)},
        NamedCommand{"SECRET1", secret(1)},
        NamedCommand{"SECRET2", secret(2)},
        NamedCommand{"SECRET3", secret(3)},
        NamedCommand{"SECRET4", secret(4)},
        NamedCommand{"SECRET4TALK", mutter({300, true, 348, 5})},
        NamedCommand{"SECRET4TALK1", mutter({200, true, 354, 3})},
        NamedCommand{"SECRET4TALK2", mutter({200, true, 353, 1})},
        NamedCommand{"SECRET5", secret(5)},
        NamedCommand{"SECRET5TALK", mutter({200, true, 357, 3})},
        NamedCommand{"SECRET6", findTrappedSecret},
        NamedCommand{"SECRET6SPAWN", spawnTrapMonster},
        NamedCommand{"SECRET7", secret(7)},
        NamedCommand{"SECRET8", secret(8)},
        NamedCommand{"SECRET9", secret(9)},
        NamedCommand{"SECRET9KILLPLAYER", killPlayer},
        NamedCommand{"SECRET9TALK", mutter({200, true, 360, 3})},
        NamedCommand{"SECRET10", secret(10)},
        NamedCommand{"SECRET10CHECK", countMonsters},
        NamedCommand{"SECRET11", secret(11)},
        NamedCommand{"SECRET11TALK", mutter({200, false, 363, 1})},
        NamedCommand{"SECRET12", secret(12)},
        NamedCommand{"SECRET13", secret(13)},
        NamedCommand{"SECRET14", secret(14)},
    };
    return table;
}
