#include "LampRoom.h"

#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Progress.h"
#include "graphicsModule/GraphicsObjecte.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"

#include <LinearMath/btVector3.h>

#include <string>

namespace {

constexpr int lamps = 14;
constexpr float depth = 1.6F;
constexpr float signDepth = 1.999F;

int& secretIndex = chapterFlags[0]; ///< Of the next lamp; 15 when the room has decided.

LightAdd* lampOf(int index) {
    const SceneObject* lamp = sceneManager().getSceneObject("S" + std::to_string(index + 1));
    So_Addition* light = lamp != nullptr ? lamp->findAddition(AdditionType::light) : nullptr;
    return static_cast<LightAdd*>(light);
}

/// A lamp that is missing is asked for again the next time.
void lightLamp() {
    LightAdd* lamp = lampOf(secretIndex);
    if (lamp == nullptr) {
        return;
    }
    const bool found = readSecrets()[static_cast<std::size_t>(secretIndex)];
    LightProperties look = lamp->getProperties();
    look.red = found ? 0.0F : 1.0F;
    look.green = found ? 1.0F : 0.0F;
    look.blue = 0.0F;
    lamp->setProperties(look);
    runScript(found ? "LOCK SOUND kick1.wav REMOVESCRIPT" : "LOCK SOUND kick2.wav REMOVESCRIPT");
    ++secretIndex;
}

void openTrapDoor() {
    if (releaseJoint("ZAPAD")) {
        runScript("LOCK SOUND clunk1.wav DELAY 100 UNLOCKMOVEMENT REMOVESCRIPT");
    }
}

void addAt(SceneObject* object, const std::string& marker) {
    btVector3 place;
    if (placeOf(marker, place)) {
        putAt(*object, place);
    }
    sceneManager().addSceneObject(object);
}

void addOldOne() {
    SceneObjectDescription description;
    description.friction = 1.0F;
    description.restitution = 1.0F;
    description.mass = 1.0F;
    description.texcoordMode = 0;
    description.texture = textureStore().find("oldchar.tga");
    description.z = depth;
    SceneParts parts = makeBoxParts(description, 0.0F, 0.0F, 15.0F, 15.0F);
    parts.type = sceneObjectType::player;
    auto* oldOne = new Player(parts);
    oldOne->addAddition(new ObjectNameAdd("OLDCHAR"));
    oldOne->contactNoise = false;
    addAt(oldOne, "CHARDEST");
}

void addSign() {
    SceneObjectDescription description;
    description.texcoordMode = 0; // the whole of it
    description.texture = textureStore().find("tolmere.tga");
    description.z = signDepth;
    auto* sign = new SceneObject(makeBoxParts(description, 0.0F, 0.0F, 200.0F, 50.0F));
    sign->physicsObject->kind = 0; // nobody bumps into it
    static_cast<GraphicsObjecte*>(sign->graphicsObject)->ignoreAmbient = true;
    addAt(sign, "LOGODEST");
}

void openWay() {
    addOldOne();
    addSign();
    runScript("CH15BRAMA");
    runScript("LOCK UNLOCKMOVEMENT SECRET15 REMOVESCRIPT");
}

/// All fourteen, or fourteen of fifteen, are enough.
void decide() {
    secretIndex = lamps + 1;
    readSecrets().count() < lamps ? openTrapDoor() : openWay();
}

} // namespace

void checkNextLamp(SceneObject*, So_Addition* link) {
    runScript("LOCK LOCKMOVEMENT REMOVESCRIPT");
    if (secretIndex < lamps) {
        lightLamp();
        return;
    }
    if (secretIndex == lamps) {
        decide();
    }
    physicsModule().removeScript(link);
}
