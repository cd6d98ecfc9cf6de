#include "WaterAddition.h"

#include "Bodies.h"
#include "Buoyancy.h"
#include "Contacts.h"
#include "Random.h"
#include "TextStream.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/WaterGraphics.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/TestPlayer.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>
#include <LinearMath/btAabbUtil2.h>

#include <algorithm>

namespace {

constexpr int wavesType = 5;             // of graphics
constexpr float enteringDepth = -0.1F;   // distance of a contact that counts as coming in
constexpr float waterDamping = 0.9F;     // of moving and turning
constexpr float characterDamping = 0.5F; // out of the water, of moving
constexpr float leapFactor = 2.0F;       // characters stir the surface more as they come out

// Hits by speed: at `fullSpeed` they are as hard and loud as they get.
constexpr float fullSpeed = 1500.0F;
constexpr float hardestHit = 250.0F;
constexpr float hardestLooseHit = 41.666668F; // ropes and hanging parts
constexpr float loudestSplash = 128.0F;
constexpr int splashSounds = 6;
constexpr SoundOwner nobody = 0;

constexpr const char* deafened = "uwater.wav";
constexpr std::uint8_t deafenedVolume = 64;

WaterGraphics* wavesOf(const SceneObject& owner) {
    GraphicsObject* graphics = owner.graphicsObject;
    return graphics != nullptr && graphics->type == wavesType
               ? static_cast<WaterGraphics*>(graphics)
               : nullptr;
}

btVector3 velocityOf(const SceneObject& object) {
    return bodyOf(&object)->getLinearVelocity();
}

/// Falling in hits the surface down, coming up lifts it.
float splashForce(const SceneObject& object) {
    const btVector3 velocity = velocityOf(object);
    const float strength = velocity.length() / fullSpeed * hardestHit;
    const float force = velocity.y() > 0.0F ? strength : -strength;
    const float most =
        object.physicsObject->kind == collisionKind::loose ? hardestLooseHit : hardestHit;
    return std::clamp(force, -most, most);
}

void hitSurface(WaterGraphics& water, const btRigidBody& basin, const SceneObject& object,
                float factor) {
    const btRigidBody& body = *bodyOf(&object);
    btVector3 low;
    btVector3 high;
    body.getAabb(low, high);
    const float place =
        body.getWorldTransform().getOrigin().x() - basin.getWorldTransform().getOrigin().x();
    water.splash(place, high.x() - low.x(), splashForce(object) * factor);
}

/// One of the sounds "NAME0.wav" to "NAME5.wav", by chance.
void playSplash(const char* name, const SceneObject& object) {
    const char digit = static_cast<char>('0' + drawRandom() % splashSounds);
    const std::string file = std::string(name) + digit + ".wav";
    const float loudness = velocityOf(object).length() / fullSpeed * loudestSplash;
    const auto volume = static_cast<std::uint8_t>(std::min(loudestSplash, loudness));
    soundManager().play(file, bodyOf(&object)->getWorldTransform().getOrigin(), nobody, volume,
                        true);
}

void closeEars(const SceneObject& object) {
    const Camera& camera = *graphicsModule().camera;
    soundManager().play(deafened, {camera.getX(), camera.getY(), 0.0F},
                        reinterpret_cast<SoundOwner>(&object), deafenedVolume, false);
}

void openEars(const SceneObject& object) {
    soundManager().stop(deafened, reinterpret_cast<SoundOwner>(&object));
}

/// With its head under the surface the protagonist hears the water, and holds its breath; with the
/// head out of it, it breathes.
void wetHead(SceneObject& object, float surface) {
    btVector3 low;
    btVector3 high;
    bodyOf(&object)->getAabb(low, high);
    if (surface >= high.y()) {
        closeEars(object);
        return;
    }
    openEars(object);
    auto& protagonist = static_cast<TestPlayer&>(object);
    protagonist.breath();
    protagonist.waterSteps = 0;
}

void lift(SceneObject& object, WaterGraphics* waves, float surface) {
    if (waves != nullptr && object.type == sceneObjectType::testPlayer) {
        wetHead(object, surface);
    }
    const PhysicsObject& physics = *object.physicsObject;
    const bool precise = waves == nullptr || object.asPlayer() != nullptr;
    applyLift(*physics.body, physics.waterFactor, surface, precise ? Lift::precise : Lift::whole);
}

void leaveOne(SceneObject& object) {
    object.waterCount = std::max(object.waterCount - 1, 0);
}

/// The broadphase lets go of a pair up to ten steps late. Until then there is a manifold without a
/// contact, and what leapt out long ago would still be wet.
bool boxesMeet(const btCollisionObject& a, const btCollisionObject& b) {
    const btBroadphaseProxy* first = a.getBroadphaseHandle();
    const btBroadphaseProxy* second = b.getBroadphaseHandle();
    return first != nullptr && second != nullptr &&
           TestAabbAgainstAabb2(first->m_aabbMin, first->m_aabbMax, second->m_aabbMin,
                                second->m_aabbMax);
}

bool isProtagonist(SceneObject& object) {
    const Player* player = object.asPlayer();
    return player != nullptr && player == sceneManager().player;
}

} // namespace

WaterAddition::WaterAddition(TextReader& stream) : WaterAddition(stream.read<float>()) {}

WaterAddition::~WaterAddition() {
    const SceneManager* scene = existingService<SceneManager>();
    for (const Entry& entry : entries) {
        if (scene != nullptr && scene->contains(entry.object)) {
            entry.object->waterCount = 0;
        }
    }
}

void WaterAddition::save(TextWriter& stream) const {
    So_Addition::save(stream);
    stream << storedValue;
}

void WaterAddition::update(SceneObject* owner) {
    btVector3 low;
    btVector3 high;
    const btRigidBody& body = *bodyOf(owner);
    body.getAabb(low, high);
    const Basin basin{body, wavesOf(*owner), high.y()};
    forgetContacts();
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        meet(basin, contactOf(owner, *manifold));
    }
    letGo(basin);
    if (basin.waves != nullptr) {
        basin.waves->updateSurface();
    }
    justLoaded = false;
}

void WaterAddition::forgetContacts() {
    for (Entry& entry : entries) {
        if (entry.state == State::inside) {
            entry.state = State::insideUnseen;
        } else if (entry.state == State::overlapping) {
            entry.state = State::overlappingUnseen;
        }
    }
}

void WaterAddition::meet(const Basin& basin, const Contact& contact) {
    SceneObject* object = contact.other;
    if (object == nullptr || object->physicsObject == nullptr ||
        !boxesMeet(basin.body, contact.body)) {
        return;
    }
    if (Entry* entry = find(object)) {
        meetAgain(basin, *entry);
    } else if (object->waterCount > 0) {
        ++object->waterCount;
        entries.push_back({object, State::overlapping});
    } else if (contact.comesWithin(enteringDepth)) {
        enter(basin, *object);
    }
}

void WaterAddition::meetAgain(const Basin& basin, Entry& entry) {
    int& count = entry.object->waterCount;
    count = std::max(count, 1); // another water may have died, and taken the whole count along
    if (entry.state == State::overlappingUnseen) {
        entry.state = State::overlapping;
    }
    if (entry.state == State::overlapping && count == 1) {
        entry.state = State::inside; // the other water has let it go
    }
    if (entry.state == State::insideUnseen) {
        entry.state = State::inside;
        lift(*entry.object, basin.waves, basin.surface);
    }
}

void WaterAddition::enter(const Basin& basin, SceneObject& object) {
    entries.push_back({&object, State::inside});
    bodyOf(&object)->setDamping(waterDamping, waterDamping);
    lift(object, basin.waves, basin.surface);
    if (object.age > 1 && basin.waves != nullptr && !justLoaded) { // what was made there is wet
        hitSurface(*basin.waves, basin.body, object, 1.0F);
        playSplash("plum", object);
    }
    ++object.waterCount;
    if (isProtagonist(object)) {
        closeEars(object);
    }
}

void WaterAddition::letGo(const Basin& basin) {
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [&](const Entry& entry) { return leaves(basin, entry); }),
                  entries.end());
}

/// Whether the step has brought no contact with the object, which then comes out.
bool WaterAddition::leaves(const Basin& basin, const Entry& entry) const {
    if (entry.state != State::insideUnseen && entry.state != State::overlappingUnseen) {
        return false;
    }
    if (!sceneManager().contains(entry.object)) {
        return true; // has died in the water
    }
    if (entry.state == State::insideUnseen) {
        comeOut(basin, *entry.object);
    } else {
        leaveOne(*entry.object);
    }
    return true;
}

void WaterAddition::comeOut(const Basin& basin, SceneObject& object) const {
    Player* player = object.asPlayer();
    if (object.waterCount == 1 && basin.waves != nullptr && !justLoaded) {
        hitSurface(*basin.waves, basin.body, object, player != nullptr ? leapFactor : 1.0F);
        bodyOf(&object)->setDamping(player != nullptr ? characterDamping : 0.0F, 0.0F);
        playSplash("unplum", object);
    }
    leaveOne(object);
    if (object.waterCount == 0 && isProtagonist(object)) {
        player->leaveWater();
        openEars(object);
    }
}

/// Contacts come in nearly the same order at each step, so that the next one asked for is mostly
/// the next in the list.
WaterAddition::Entry* WaterAddition::find(const SceneObject* object) {
    for (std::size_t searched = 0; searched < entries.size(); ++searched) {
        lastFound = lastFound + 1 < entries.size() ? lastFound + 1 : 0;
        if (entries[lastFound].object == object) {
            return &entries[lastFound];
        }
    }
    return nullptr;
}
