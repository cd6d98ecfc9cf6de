#include "EvilPlayer.h"

#include "Equipment.h"
#include "EvilHands.h"
#include "MonsterParts.h"
#include "Random.h"
#include "So_Addons/CallbackAdd.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/LightReaderAdd.h"
#include "physicsModule/PhysicsObject.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <string>

namespace {

constexpr float linearDamping = 0.5F; // water changes it, and puts this back

constexpr int growls = 4; // sounds of each kind
constexpr int deathCries = 4;
constexpr int hisses = 5;
constexpr std::uint8_t growlVolume = 64;
constexpr std::uint8_t fullVolume = 128;
constexpr unsigned dustOfDeath = 10;

/// One of the sounds "NAME0.wav" and on, by chance.
void playAny(const char* name, int count, const btVector3& place, SoundOwner owner,
             std::uint8_t volume) {
    const std::string file = name + std::to_string(drawRandom() % count) + ".wav";
    soundManager().play(file, place, owner, volume, true);
}

std::vector<EvilPlayer::Waypoint> readWaypoints(TextReader& stream) {
    std::vector<EvilPlayer::Waypoint> ring(stream.readCount());
    for (EvilPlayer::Waypoint& point : ring) {
        stream >> point.x >> point.y;
    }
    return ring;
}

} // namespace

EvilPlayer::EvilPlayer() : EvilPlayer(makeMonsterParts()) {
    addAddition(parseScript(monsterLook::footfall));
    addAddition(new LightReaderAdd);
}

EvilPlayer::EvilPlayer(const SceneParts& parts) : Player(parts) {
    body().setDamping(linearDamping, 0.0F);
    // Contacts rub along x only, so that walls do not hold a jump back.
    body().setAnisotropicFriction({1.0F, 0.0F, 0.0F});
    auto* hands = new EvilHands;
    equipment->add(hands);
    hands->select();
}

EvilPlayer* EvilPlayer::load(TextReader& stream, const SceneParts& parts) {
    if (parts.physics == nullptr) {
        stream.fail();
    }
    const PlayerStatistics read = readPlayerStatistics(stream);
    const auto lit = stream.read<bool>();
    const auto does = static_cast<EvilState>(stream.read<int>());
    std::vector<Waypoint> ring = readWaypoints(stream);
    const auto index = stream.read<unsigned>();
    auto* monster = new EvilPlayer(parts);
    monster->setStatistics(read);
    monster->eyesLit = lit;
    monster->state = does;
    monster->waypoints = std::move(ring);
    monster->waypointIndex = index; // may lie beyond a ring that was cut short, see `patrol`
    return monster;
}

EvilPlayer* EvilPlayer::of(SceneObject* object) {
    return object != nullptr && object->type == sceneObjectType::evilPlayer
               ? dynamic_cast<EvilPlayer*>(object)
               : nullptr;
}

void EvilPlayer::save(TextWriter& stream) const {
    Player::save(stream);
    stream << eyesLit << static_cast<int>(state) << waypoints.size();
    for (const Waypoint& point : waypoints) {
        stream << point.x << point.y;
    }
    stream << waypointIndex;
}

void EvilPlayer::moveBy(float dx, float dy) {
    Player::moveBy(dx, dy);
    for (Waypoint& point : waypoints) {
        point.x += dx;
        point.y += dy;
    }
}

void EvilPlayer::update() {
    feelLight();
    behave();
    spreadDread();
    bite();
    howlByChance();
    Player::update();
}

void EvilPlayer::lightEyes() {
    if (eyesLit) {
        return;
    }
    // In front of all others, where they are found again.
    additions.insert(additions.begin(),
                     {new LightAdd(makeEyeLight(1.0F)), new LightAdd(makeEyeLight(-1.0F))});
    calmSteps = 0;
    eyesLit = true;
}

void EvilPlayer::dimEyes() {
    if (!eyesLit) {
        return;
    }
    constexpr int eyes = 2;
    for (int i = 0; i < eyes; ++i) {
        if (!additions.empty() && additions.front()->type == AdditionType::light) {
            removeAddition(additions.front());
        }
    }
    eyesLit = false;
}

void EvilPlayer::growl() {
    playAny("zom", growls, body().getWorldTransform().getOrigin(),
            reinterpret_cast<SoundOwner>(this), growlVolume);
}

void EvilPlayer::die() {
    if (graphicsObject == nullptr) {
        return; // has died, and of graphics that do not go to pieces
    }
    Player::die();
    constexpr auto nobody = static_cast<SoundOwner>(-1); // who cries is gone in a moment
    const btVector3& place = body().getWorldTransform().getOrigin();
    playAny("evildie", deathCries, place, nobody, fullVolume);
    playAny("syk", hisses, place, nobody, fullVolume);
    graphicsModule().spawnDust(place, dustOfDeath);
}
