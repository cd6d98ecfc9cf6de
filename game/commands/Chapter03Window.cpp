#include "Chapter03Window.h"

#include "Monsters.h"
#include "NamedObjects.h"
#include "Verbs.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/LightReaderAdd.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

namespace {

constexpr float buttonStep = 0.6F;
constexpr float lidStep = 1.6F;
constexpr float hunterSpeed = 180.0F;
constexpr float lastSpeed = 160.0F;
constexpr float gatePlace = -290.0F; // x of the inner side of the gate
constexpr float floorPlace = -20.0F; // y of one that walks the floor
constexpr int watchers = 6;
constexpr int longestWave = 3600; // steps after which the way out opens, whoever still hides

std::string numbered(const char* name, int number) {
    return name + std::to_string(number);
}

/// Whether the button has reached its place; false if either is missing.
bool isPressed(int number) {
    btVector3 button;
    btVector3 place;
    return placeOf(numbered("WINBUT", number), button) &&
           placeOf(numbered("WINBUT", number) + "D", place) && button.distance2(place) < 1.0F;
}

/// A puppet that stood behind the window hunts from now on, and the light can hurt it.
void setFree(EvilPlayer& monster) {
    monster.state = EvilState::hunter;
    monster.waypoints = {
        {1600.0F, 52.0F}, {1530.0F, floorPlace}, {1700.0F, floorPlace}, {2100.0F, floorPlace}};
    monster.addAddition(new LightReaderAdd);
    monster.addAddition(parseScript("SOUNDSOURCE lap.wav"));
}

/// How far the daylight is uncovered, 0 to 1.
void shine(float strength) {
    for (int number = 1; number <= 4; ++number) {
        verb::colourLight(numbered("SLONCE", number), strength, strength,
                          0.92F * strength)(nullptr, nullptr);
    }
}

} // namespace

void spawnBeforeGate(SceneObject*, So_Addition*) {
    for (const float x : {-900.0F, -860.0F, -820.0F}) {
        addMonster({x, -15.0F, 0.0F}, hunterSpeed,
                   {{-420.0F, -15.0F, 0.0F}, {-800.0F, -15.0F, 0.0F}});
    }
}

ScriptCallback pressButton(int number) {
    const std::string button = numbered("WINBUT", number);
    return verb::moveLoopTo(
        button, button + "D", buttonStep,
        verb::script("LOCK SOUND switch.wav " + numbered("CH3POWER", number) + " REMOVESCRIPT"));
}

ScriptCallback powerWindow(int number) {
    return [number](SceneObject*, So_Addition*) {
        const std::string lamp = numbered("POWER", number);
        verb::colourLight(lamp, 1.0F, 0.6F, 0.3F)(nullptr, nullptr);
        btVector3 place;
        if (placeOf(lamp, place)) {
            zap(place);
        }
        if (isPressed(1) && isPressed(2)) {
            runScript("LOCK DELAY 40 CH3PLAY2 CH3EYES DELAY 330 CH3BLEND CH3WINSTOP REMOVESCRIPT");
        }
    };
}

ScriptCallback openEyes() {
    std::string script = "LOCK SOUND anxiety8.wav";
    for (int number = 1; number <= watchers; ++number) {
        script += " DELAY 35 " + numbered("CH3ZL", number);
    }
    return verb::all(
        {verb::colourLight("OKNO", 0.55F, 0.3F, 0.15F), verb::script(script + " REMOVESCRIPT")});
}

ScriptCallback wakeBehindWindow(int number) {
    return [number](SceneObject*, So_Addition*) {
        btVector3 place;
        if (!placeOf(numbered("ZL", number), place)) {
            return;
        }
        EvilPlayer& monster = addMonster(place, lastSpeed);
        monster.state = EvilState::puppet; // neither heard nor hurt by the lamp
        monster.removeAddition(monster.findAddition(AdditionType::soundSource));
        monster.removeAddition(monster.findAddition(AdditionType::lightReader));
        monster.lightEyes();
        monster.growl();
    };
}

void stopWindow(SceneObject*, So_Addition* link) {
    verb::colourLight("OKNO", 0.0F, 0.0F, 0.0F)(nullptr, link);
    soundManager().playFlat("kick2.wav", 128);
    verb::dustAt("SZYBA1", 0.0F, 0.0F, 60, "close.wav")(nullptr, link);
    if (SceneObject* window = sceneManager().getSceneObject("SZYBA1")) {
        window->shatter();
    }
    for (SceneObject* object : sceneManager().objects) {
        EvilPlayer* monster = EvilPlayer::of(object);
        if (monster != nullptr && monster->state == EvilState::puppet) {
            setFree(*monster);
        }
    }
    runScript("LOCK CH3LSPAWNI REMOVESCRIPT");
}

void startLastWave(SceneObject*, So_Addition*) {
    if (SceneObject* window = sceneManager().getSceneObject("OKNO")) {
        window->addAddition(parseScript(
            "LOCK SOUND anxiety3.wav CH3LSPAWN DELAY 150 CH3LSPAWN DELAY 150 CH3LSPAWN"));
        window->addAddition(parseScript("CH3LSPAWNS"));
    }
}

void spawnLast(SceneObject*, So_Addition*) {
    btVector3 place;
    if (placeOf("LSPAWN", place)) {
        addMonster(place, lastSpeed, {{2100.0F, floorPlace, 0.0F}, {1530.0F, floorPlace, 0.0F}});
    }
}

void awaitEnd(SceneObject* owner, So_Addition* link) {
    const auto& objects = sceneManager().objects;
    const bool anyLeft = std::any_of(objects.begin(), objects.end(), [](const SceneObject* object) {
        return object->type == sceneObjectType::evilPlayer && object->physicsObject != nullptr &&
               object->physicsObject->body->getWorldTransform().getOrigin().x() > gatePlace;
    });
    const bool over = !anyLeft || ++chapterFlags[0] > longestWave;
    if (!over || sceneManager().player == nullptr) {
        return;
    }
    runScript("LOCK SOUND mystery.wav AMBIENT 0.24 DELAY 60 CH3TALKWOW REMOVESCRIPT");
    runScript("CH3OP");
    owner->removeAddition(link);
}

void pressDaylight(SceneObject*, So_Addition*) {
    btVector3 place;
    PhysicsObject* button = placeOf("WCISKDEST", place) ? physicsOf("WCISK") : nullptr;
    if (button != nullptr) {
        button->moveTowards(place.x(), place.y(), 1000.0F);
        soundManager().playAt("switch.wav", place);
    }
    runScript("CH3POKRYWKA");
}

void liftLid(SceneObject*, So_Addition* link) {
    btVector3 place;
    PhysicsObject* lid = placeOf("POKRYWKADEST", place) ? physicsOf("POKRYWKA") : nullptr;
    if (lid == nullptr) {
        physicsModule().removeScript(link);
        return;
    }
    const bool open = lid->moveTowards(place.x(), place.y(), lidStep);
    constexpr float way = 149.0F; // that the lid goes
    const float left = lid->body->getWorldTransform().getOrigin().distance(place);
    shine(std::clamp(1.0F - left / way, 0.0F, 1.0F));
    if (open) {
        physicsModule().removeScript(link);
    }
}
