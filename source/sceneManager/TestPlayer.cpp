#include "TestPlayer.h"

#include "Equipment.h"
#include "Hands.h"
#include "ProtagonistParts.h"
#include "Random.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LightReaderAdd.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace {

constexpr float linearDamping = 0.5F; // water changes it, and puts this back

// Fear, a step. Light is the mean of three bytes.
constexpr int darkBelow = 30;
constexpr float dreadPeriodStep = -0.1F; // breaths come quicker
constexpr int dreadLevelStep = 1;        // and louder
constexpr float lightPerCalm = 500.0F;   // light that lengthens the pause of breaths by a step
constexpr float heartStep = 0.2F;        // of the heartbeat's volume
constexpr float loudestHeart = 128.0F;
constexpr float calmPeriod = 300.0F; // no breaths
constexpr int dipIntoCalm = -100;    // nobody pants in water

// Steps with the head under water.
constexpr int shortestDive = 10; // below it nobody gasps
constexpr float silentDive = 100.0F;
constexpr float loudDive = 400.0F; // on top of the silent one
constexpr int loudestGasp = 100;
constexpr int gulpsBegin = 400;
constexpr int gulpPeriod = 60;
constexpr int airEnds = 650;
constexpr int drowningLoss = 30;        // hit points a gulp; armour is no help
constexpr int longestDive = 1000000000; // what a file may say

// Feet.
constexpr std::uint32_t strideSteps = 40; // of physics, two footfalls
constexpr float walkLoudness = 34.0F;     // at full speed
constexpr std::uint8_t loudestStep = 100;
constexpr std::uint8_t takeOffVolume = 60;
constexpr float softestLanding = 50.0F; // impulse
constexpr float landingShare = 10.0F;   // impulse for each unit of volume
constexpr float loudestLanding = 80.0F;

// Wounds. Small ones bleed a drop for each hit point.
constexpr float smallWound = 4.0F;
constexpr float pointsPerDrop = 4.0F;
constexpr float mostDrops = 1000.0F;
constexpr unsigned dropsOfDeath = 40;

constexpr int cries = 3; // sounds of each kind
constexpr std::uint8_t fullVolume = 128;
constexpr std::uint8_t chokedVolume = 64;

constexpr const char* leftFoot = "foot0.wav";
constexpr const char* rightFoot = "foot1.wav";

/// What the protagonist's throat does is heard as the user's own: nowhere, and by nobody.
void playInside(const std::string& name, std::uint8_t volume) {
    constexpr auto nobody = static_cast<SoundOwner>(-1);
    soundManager().play(name, {0.0F, 0.0F, 0.0F}, nobody, volume, true);
}

/// One of the sounds "NAME0.wav" to "NAME2.wav", by chance.
void playAny(const char* name, std::uint8_t volume) {
    playInside(name + std::to_string(drawRandom() % cries) + ".wav", volume);
}

/// By the share of full speed at which the feet move over the ground.
std::uint8_t stepVolume(float share) {
    constexpr float most = 1e6F;
    const auto loudness = static_cast<int>(std::min(most, share * walkLoudness)); // NaN is most
    return std::min(static_cast<std::uint8_t>(loudness), loudestStep);
}

unsigned dropsFor(float damage) {
    const float drops = damage < smallWound ? damage : damage / pointsPerDrop;
    return static_cast<unsigned>(std::min(drops, mostDrops));
}

} // namespace

TestPlayer::TestPlayer() : TestPlayer(makeProtagonistParts()) {
    addAddition(new LightReaderAdd);
}

TestPlayer::TestPlayer(const SceneParts& parts)
    : Player(parts),
      lastHealth(static_cast<float>(statistics.health)),
      facingLeft(ProtagonistParts(*graphicsObject).looksLeft()) {
    body().setDamping(linearDamping, 0.0F);
    // Contacts rub along x only, so that walls do not hold a jump back.
    body().setAnisotropicFriction({1.0F, 0.0F, 0.0F});
    auto* hands = new Hands;
    equipment->add(hands);
    hands->select();
}

TestPlayer::~TestPlayer() {
    if (auto* sounds = existingService<SoundManager>()) {
        sounds->fearPeriod = calmPeriod;
        sounds->fearLevel = 0;
    }
}

TestPlayer* TestPlayer::load(TextReader& stream, const SceneParts& parts) {
    if (parts.physics == nullptr || !ProtagonistParts::fit(*parts.graphics)) {
        stream.fail();
    }
    const PlayerStatistics read = readPlayerStatistics(stream);
    const int dive = stream.read<int>();
    if (dive < 0 || dive > longestDive) {
        stream.fail();
    }
    auto* player = new TestPlayer(parts);
    player->setStatistics(read);
    player->waterSteps = dive;
    return player;
}

void TestPlayer::save(TextWriter& stream) const {
    Player::save(stream);
    stream << waterSteps;
}

void TestPlayer::setStatistics(const PlayerStatistics& values) {
    Player::setStatistics(values);
    lastHealth = static_cast<float>(statistics.health);
}

void TestPlayer::update() {
    breathing = true;
    feelLight();
    animate();
    holdBreath();
    drown();
    feelPain();
    Player::update();
    hearLanding();
    justArrived = false;
}

void TestPlayer::feelLight() {
    const auto* reader = static_cast<LightReaderAdd*>(findAddition(AdditionType::lightReader));
    if (reader == nullptr) {
        return;
    }
    const int light = (reader->red + reader->green + reader->blue) / 3;
    const bool dark = light < darkBelow;
    SoundManager& sounds = soundManager();
    if (dark) {
        sounds.addFear(dreadPeriodStep, dreadLevelStep);
    } else {
        sounds.addFear(static_cast<float>(light) / lightPerCalm, 0);
    }
    sounds.heartVolume =
        std::clamp(sounds.heartVolume + (dark ? heartStep : -heartStep), 0.0F, loudestHeart);
    ++sounds.heartCount;
}

void TestPlayer::holdBreath() {
    // Who comes from a save in a dive is in the water before the water knows.
    const bool dives = justArrived && waterSteps > 0;
    if (waterCount > 0 || dives) {
        soundManager().addFear(0.0F, dipIntoCalm);
        ++waterSteps;
    } else {
        breath();
        waterSteps = 0;
    }
}

void TestPlayer::breath() {
    if (waterSteps > shortestDive) {
        const float share = (static_cast<float>(waterSteps) - silentDive) / loudDive;
        const int volume = std::clamp(static_cast<int>(share * fullVolume), 0, loudestGasp);
        playInside("breath.wav", static_cast<std::uint8_t>(volume));
    }
}

void TestPlayer::drown() {
    if (waterSteps <= gulpsBegin || waterSteps % gulpPeriod != 0) {
        return;
    }
    if (waterSteps > airEnds) {
        statistics.health = std::max(statistics.health, 0) - drowningLoss;
        breathing = false;
    }
    playAny("gulp", breathing ? fullVolume : chokedVolume);
}

void TestPlayer::feelPain() {
    const auto health = static_cast<float>(statistics.health);
    if (health < lastHealth && statistics.health >= 0 && breathing) {
        playAny("uh", fullVolume);
        graphicsModule().spawnBlood(body().getWorldTransform().getOrigin(),
                                    dropsFor(lastHealth - health));
    }
    lastHealth = health;
}

void TestPlayer::hearLanding() {
    const float impulse = footImpulse();
    if (impulse > softestLanding) {
        const float volume = std::min(impulse / landingShare, loudestLanding);
        playFeet(static_cast<std::uint8_t>(volume));
    }
}

bool TestPlayer::jump() {
    const bool tookOff = Player::jump();
    if (tookOff) {
        playFeet(takeOffVolume);
    }
    return tookOff;
}

bool TestPlayer::moveLeft() {
    const bool result = Player::moveLeft();
    hearStep(leftFoot, rightFoot);
    return result;
}

bool TestPlayer::moveRight() {
    const bool result = Player::moveRight();
    hearStep(rightFoot, leftFoot);
    return result;
}

/// The feet fall by the clock that moves the legs, so that they are heard where they are seen.
void TestPlayer::hearStep(const char* atStart, const char* atHalf) {
    const std::uint32_t phase = physicsModule().stepCount % strideSteps;
    if (supportNow == nullptr || phase % (strideSteps / 2) != 0) {
        return;
    }
    const float slip = body().getLinearVelocity().x() - supportVelocity.x();
    playFoot(phase == 0 ? atStart : atHalf, stepVolume(std::abs(slip / statistics.speed)));
}

void TestPlayer::playFeet(std::uint8_t volume) {
    playFoot(leftFoot, volume);
    playFoot(rightFoot, volume);
}

void TestPlayer::playFoot(const char* name, std::uint8_t volume) {
    soundManager().play(name, body().getWorldTransform().getOrigin(),
                        reinterpret_cast<SoundOwner>(this), volume, true);
}

void TestPlayer::die() {
    Player::die();
    if (breathing) {
        playAny("dying", fullVolume);
        graphicsModule().spawnBlood(body().getWorldTransform().getOrigin(), dropsOfDeath);
    } else {
        playInside("diewater.wav", fullVolume);
    }
}
