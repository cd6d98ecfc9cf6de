#include "GhostWalk.h"

#include "Monsters.h"
#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

namespace {

constexpr float hauntAhead = 90.0F; // world units from the protagonist
constexpr float hauntOver = 45.0F;
constexpr float farewellSpeed = 200.0F; // of a ghost's last particles, units a second
constexpr float farewell = 120.0F;      // particles

ObjectNameAdd* nameAdditionOf(const SceneObject& object) {
    return static_cast<ObjectNameAdd*>(object.findAddition(AdditionType::objectName));
}

/// Whether the protagonist is that near, or has passed the ghost: all routes lead to the right.
bool hasFollowed(const SceneObject& ghost, float nearness) {
    const btRigidBody* body = bodyOf(sceneManager().player);
    if (body == nullptr) {
        return false;
    }
    const btVector3 way = body->getWorldTransform().getOrigin() -
                          ghost.physicsObject->body->getWorldTransform().getOrigin();
    return way.x() > 0.0F || way.length() < nearness;
}

/// True if the ghost is there, or needs not go. `lost` if there is no such place.
bool goTo(const char* place, SceneObject& ghost, float step, bool& lost) {
    btVector3 target;
    if (place == nullptr) {
        return true;
    }
    lost = !placeOf(place, target);
    return !lost && ghost.physicsObject->moveTowards(target.x(), target.y(), step);
}

void finishStage(const GhostStage& stage, Player& ghost) {
    if (stage.says.line != 0) {
        verb::speak(ghost, {stage.says});
    }
    rename(ghost, stage.next);
    if (stage.script != nullptr) {
        runScript(stage.script);
    }
}

} // namespace

namespace verb {

ScriptCallback walk(std::vector<GhostStage> stages, float step) {
    return [stages = std::move(stages), step](SceneObject* owner, So_Addition* link) {
        Player* ghost = owner != nullptr ? owner->asPlayer() : nullptr;
        if (ghost == nullptr) {
            return;
        }
        const auto stage =
            std::find_if(stages.begin(), stages.end(),
                         [ghost](const GhostStage& entry) { return ghost->hasName(entry.name); });
        bool lost = stage == stages.end();
        if (!lost && goTo(stage->place, *ghost, step, lost) &&
            (stage->nearness == 0.0F || hasFollowed(*ghost, stage->nearness)) &&
            (stage->says.line == 0 || !ghost->isSpeaking())) {
            finishStage(*stage, *ghost);
        }
        if (lost) {
            endLoop(owner, link);
        }
    };
}

ScriptCallback putGhost(const std::string& place, const std::string& name,
                        const std::string& chain) {
    return [=](SceneObject*, So_Addition*) {
        btVector3 origin;
        if (!placeOf(place, origin)) {
            return;
        }
        Player& ghost = makeGuide();
        putAt(ghost, origin);
        ghost.addAddition(new ObjectNameAdd(name));
        ghost.addAddition(parseScript(chain));
        sceneManager().addSceneObject(&ghost);
    };
}

ScriptCallback haunt(std::vector<Speech> lines, const std::string& after) {
    const std::string rest = after.empty() ? "" : after + " ";
    return [lines = std::move(lines), rest](SceneObject*, So_Addition*) {
        const btRigidBody* player = bodyOf(sceneManager().player);
        if (player == nullptr || sceneManager().getSceneObject("GHOST") != nullptr) {
            return;
        }
        Player& ghost = makeGuide();
        putAt(ghost,
              player->getWorldTransform().getOrigin() + btVector3(hauntAhead, hauntOver, 0.0F));
        ghost.addAddition(parseScript("NAME GHOST"));
        sceneManager().addSceneObject(&ghost);
        speak(ghost, lines);
        runScript("LOCK SOUND anxiety1.wav LOCKMOVEMENT DELAY 1000 UNLOCKMOVEMENT "
                  "CH12REMOVEGHOST " +
                  rest + "REMOVESCRIPT");
    };
}

ScriptCallback dismiss(std::string name) {
    return [name = std::move(name)](SceneObject*, So_Addition*) {
        SceneObject* ghost = sceneManager().getSceneObject(name);
        btVector3 place;
        if (ghost != nullptr && placeOf(name, place)) {
            burst(ghost, farewellSpeed, farewell);
            soundManager().playAt("whisp.wav", place);
            sceneManager().markForRemoval(ghost);
        }
    };
}

} // namespace verb

Player* findGhost() {
    const auto& objects = sceneManager().objects;
    const auto found = std::find_if(objects.begin(), objects.end(), [](const SceneObject* object) {
        return object->type == sceneObjectType::player && object != sceneManager().player;
    });
    return found != objects.end() ? (*found)->asPlayer() : nullptr;
}

void kindle(SceneObject& ghost, float size, float red, float green, float blue) {
    LightProperties look;
    look.size = size;
    look.red = red;
    look.green = green;
    look.blue = blue;
    look.texture = textureStore().find("light1.tga");
    if (auto* light = static_cast<LightAdd*>(ghost.findAddition(AdditionType::light))) {
        light->setProperties(look);
    } else {
        ghost.addAddition(new LightAdd(look));
    }
}

void rename(SceneObject& object, const std::string& name) {
    if (ObjectNameAdd* current = nameAdditionOf(object)) {
        current->setName(name);
    }
}

void endLoop(SceneObject* owner, So_Addition* link) {
    if (owner != nullptr) {
        owner->removeAddition(link);
    } else {
        physicsModule().removeScript(link);
    }
}
