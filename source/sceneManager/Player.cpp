#include "Player.h"

#include "Aim.h"
#include "EqItem.h"
#include "Equipment.h"
#include "SceneManager.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr float contactThreshold = 0.1F; // world units between shapes that still touch
constexpr float waterShare = 0.9F;       // of the body's size that counts in water
constexpr float supportFade = 0.99F;     // of a lost support's velocity that a step leaves
constexpr float initialGaze = 50.0F;     // world units to the right

} // namespace

Player::Player(const SceneParts& parts)
    : SceneObject(parts),
      equipment(std::make_unique<Equipment>(this)),
      aimPoint(body().getWorldTransform().getOrigin() + btVector3(initialGaze, 0.0F, 0.0F)),
      lastJumpStep(physicsModule().stepCount) {
    if (type == sceneObjectType::plain) {
        type = sceneObjectType::player;
    }
    setUpBody();
}

void Player::setUpBody() {
    physicsObject->wantsContacts = true;
    physicsObject->waterFactor = waterShare;
    body().setLinearFactor({1.0F, 1.0F, 0.0F});
    body().setAngularFactor({0.0F, 0.0F, 0.0F}); // characters never turn
    body().setActivationState(DISABLE_DEACTIVATION);
}

Player::~Player() {
    if (auto* sounds = existingService<SoundManager>()) {
        sounds->stopOwner(reinterpret_cast<SoundOwner>(this));
    }
    equipment.reset();
    removeSayText();
    if (auto* scene = existingService<SceneManager>(); scene != nullptr && scene->player == this) {
        scene->player = nullptr;
    }
}

btRigidBody& Player::body() const {
    return *physicsObject->body;
}

Player* Player::load(TextReader& stream, const SceneParts& parts) {
    if (parts.physics == nullptr) {
        stream.fail();
    }
    const PlayerStatistics read = readPlayerStatistics(stream);
    auto* player = new Player(parts);
    player->setStatistics(read);
    return player;
}

void Player::save(TextWriter& stream) const {
    SceneObject::save(stream);
    statistics.save(stream);
}

void Player::setStatistics(const PlayerStatistics& values) {
    statistics = values;
}

void Player::update() {
    SceneObject::update();
    if (supportRecent == nullptr) {
        supportVelocity *= supportFade;
    }
    scanContacts(contactThreshold);
    if (!walkTarget.isZero()) {
        setWalkTarget(walkTarget);
    }
    if (statistics.health < 0) {
        die();
        return;
    }
    updateLines();
    moveByKeys();
    useItem();
    if (equipment->current != nullptr) {
        equipment->current->update();
    }
}

void Player::useItem() {
    if ((keys & (playerKey::primary | playerKey::secondary)) == 0 ||
        equipment->current == nullptr) {
        return;
    }
    const btVector3& place = body().getWorldTransform().getOrigin();
    equipment->current->use(place.x(), place.y(), angleFromUp(aimPoint - place), 0.0F, 0.0F);
}

void Player::hurt(int damage) {
    const double share = 1.0 - static_cast<double>(statistics.armor) / 100.0;
    const double left = std::trunc(statistics.health - share * damage);
    using Limits = std::numeric_limits<std::int32_t>;
    statistics.health =
        static_cast<std::int32_t>(std::clamp<double>(left, Limits::min(), Limits::max()));
}

void Player::die() {
    removeSayText();
    shatter();
}
