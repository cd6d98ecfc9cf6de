#include "Chapter08Flight.h"

#include "GhostWalk.h"
#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/GraphicsObject.h"
#include "graphicsModule/LockedCamera.h"
#include "graphicsModule/ParticleEmiter.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/Bodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <array>
#include <cmath>
#include <string>

namespace {

// World units.
constexpr float thingHeight = 30.0F; // over the protagonist
constexpr float thingRadius = 10.0F; // small enough not to touch the head that it comes from
constexpr float thingLight = 420.0F;
constexpr float flightZoom = 1.5F;
constexpr float markReach = 150.0F; // of THINGPOS1 and THINGPOS2
constexpr float glide = 0.02F;      // share of the way to the mouse that a step covers

constexpr std::size_t checkpoint = 5; // index in `chapterFlags`: of THINGPOS1, THINGPOS2

constexpr int shields = 3;
constexpr float shieldOpacity = 0.5F;
constexpr float shieldFading = 0.01F; // of opacity, a step
constexpr unsigned shieldSparks = 50;

constexpr float preyStep = 3.0F;    // units a step
constexpr float leapFrom = 1000.0F; // what is further than that, the prey reaches at once
constexpr float hover = 9.0F;       // units up and down
constexpr float hoverPace = 0.045F; // radians a step

ParticleParams thingGlow() {
    ParticleParams glow;
    glow.size = 9.0F;
    glow.z = 1.6F; // over the light map
    glow.texture = textureStore().find("particle14.tga");
    glow.life = 60.0F;
    glow.fade = glow.life;
    glow.endColour = {0.9F, 0.45F, 1.0F, 0.0F};
    glow.speed = 14.0F;
    glow.spin = 10.0F;
    glow.spread = SIMD_PI;
    glow.rate = 2.4F;
    glow.additive = 1;
    return glow;
}

Player* makeThing() {
    SceneObjectDescription description;
    description.texture = textureStore().find("null.tga");
    description.z = 1.6F;
    description.r = description.g = description.b = description.a = 0.0F;
    auto* thing = new Player(makeSphereParts(description, 0.0F, 0.0F, thingRadius));
    thing->physicsObject->kind = collisionKind::solid; // meets the walls, although it is static
    thing->contactNoise = false;
    thing->addAddition(new ObjectNameAdd("THING"));
    thing->addAddition(new ParticleEmiter(thingGlow()));
    kindle(*thing, thingLight, 0.85F, 0.6F, 1.0F);
    return thing;
}

void takeOver(Player& thing) {
    sceneManager().player = &thing;
    soundManager().playMusic("creepy6.ogg");
    auto* camera = new LockedCamera(&thing);
    camera->setZoom(flightZoom);
    useCamera(camera);
}

bool isNear(const SceneObject& thing, const char* mark) {
    btVector3 place;
    return placeOf(mark, place) && place.distance(placeOf(thing)) < markReach;
}

void noteCheckpoint(const SceneObject& thing) {
    if (isNear(thing, "THINGPOS1")) {
        chapterFlags[checkpoint] = 1;
    } else if (isNear(thing, "THINGPOS2")) {
        chapterFlags[checkpoint] = 2;
    }
}

void sendBack(SceneObject& thing) {
    static constexpr std::array marks{"THINGPOS", "THINGPOS1", "THINGPOS2"};
    runScript("LOCK SOUND kick.wav REMOVESCRIPT");
    graphicsModule().spawnSparks(placeOf(thing), shieldSparks);
    btVector3 place;
    if (placeOf(marks[static_cast<std::size_t>(chapterFlags[checkpoint])], place)) {
        putAt(thing, place);
        graphicsModule().camera->setX(place.x());
        graphicsModule().camera->setY(place.y());
    }
}

SceneObject* shieldNumber(int number) {
    return sceneManager().getSceneObject("SHIELD" + std::to_string(number));
}

/// Its alpha is that much nearer to the goal. True when it is there.
bool fadeTo(SceneObject& object, float goal) {
    GraphicsObject* graphics = object.graphicsObject;
    if (graphics == nullptr) {
        return true;
    }
    float r = 0.0F;
    float g = 0.0F;
    float b = 0.0F;
    float a = 0.0F;
    graphics->getColour(r, g, b, a);
    const bool arrives = std::abs(goal - a) <= shieldFading;
    graphics->setColour(r, g, b, arrives ? goal : a + (goal > a ? shieldFading : -shieldFading));
    return arrives;
}

} // namespace

namespace flight {

void createThing(SceneObject*, So_Addition*) {
    const btRigidBody* player = bodyOf(sceneManager().player);
    if (player == nullptr || sceneManager().getSceneObject("THING") != nullptr) {
        return;
    }
    Player* thing = makeThing();
    putAt(*thing, player->getWorldTransform().getOrigin() + btVector3(0.0F, thingHeight, 0.0F));
    sceneManager().addSceneObject(thing);
}

void controlThing(SceneObject*, So_Addition* link) {
    SceneObject* found = sceneManager().getSceneObject("THING");
    Player* thing = found != nullptr ? found->asPlayer() : nullptr;
    if (thing == nullptr) {
        physicsModule().removeScript(link);
        return;
    }
    if (sceneManager().player != thing) {
        takeOver(*thing);
        return;
    }
    noteCheckpoint(*thing);
    if (thing->touchesObject("ENEMY")) {
        runScript("LOCK CH8END REMOVESCRIPT");
        physicsModule().removeScript(link);
        return;
    }
    if (thing->isTouching()) {
        sendBack(*thing);
        return;
    }
    const btVector3 aim = thing->aimPoint;
    thing->physicsObject->moveTowards(aim.x(), aim.y(), aim.distance(placeOf(*thing)) * glide);
}

void setShield(SceneObject* owner, So_Addition* link) {
    if (owner != nullptr) {
        if (fadeTo(*owner, shieldOpacity)) {
            owner->removeAddition(link);
        }
        return;
    }
    for (int number = 1; number <= shields; ++number) {
        if (SceneObject* shield = shieldNumber(number)) {
            shield->addAddition(parseScript("CH8SETSHIELD"));
        }
    }
    verb::interrupt({{227, 150}, {0, 30}, {228, 120}})(owner, link);
}

void unshield(SceneObject* owner, So_Addition*) {
    btRigidBody* body = bodyOf(owner);
    if (body == nullptr) {
        return;
    }
    if (body->hasContactResponse()) {
        body->setCollisionFlags(body->getCollisionFlags() |
                                btCollisionObject::CF_NO_CONTACT_RESPONSE);
        graphicsModule().spawnSparks(placeOf(*owner), shieldSparks);
        zap(placeOf(*owner));
    }
    if (fadeTo(*owner, 0.0F)) {
        sceneManager().markForRemoval(owner);
    }
}

void behaveAsPrey(SceneObject* owner, So_Addition*) {
    PhysicsObject* prey = owner != nullptr ? owner->physicsObject : nullptr;
    if (prey == nullptr || sceneManager().getSceneObject("THING") == nullptr) {
        return; // it rests until somebody is out to catch it
    }
    int left = 0;
    for (int number = 1; number <= shields; ++number) {
        left += shieldNumber(number) != nullptr ? 1 : 0;
    }
    btVector3 place;
    if (!placeOf(left == shields ? std::string("ENEMYPOS") : "GO" + std::to_string(shields - left),
                 place)) {
        return;
    }
    place += btVector3(
        0.0F, hover * std::sin(static_cast<float>(physicsModule().stepCount) * hoverPace), 0.0F);
    if (place.distance(placeOf(*owner)) > leapFrom) {
        graphicsModule().spawnSparks(placeOf(*owner), shieldSparks);
        zap(place);
        putAt(*owner, place);
    }
    prey->moveTowards(place.x(), place.y(), preyStep);
    for (int number = 1; number <= shields; ++number) {
        if (SceneObject* shield = shieldNumber(number)) {
            putAt(*shield, placeOf(*owner));
        }
    }
}

void passRift(SceneObject* owner, So_Addition* link) {
    btVector3 place;
    SceneObject* thing = touchWithin(owner, "THING");
    if (thing == nullptr || !placeOf("TELDEST", place)) {
        return;
    }
    graphicsModule().spawnSparks(placeOf(*thing), shieldSparks);
    putAt(*thing, place);
    graphicsModule().camera->setX(place.x());
    graphicsModule().camera->setY(place.y());
    zap(place);
    verb::interrupt({{236, 150}})(owner, link);
}

} // namespace flight
