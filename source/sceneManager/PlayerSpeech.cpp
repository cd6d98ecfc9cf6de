// The lines that a character speaks, shown above it.

#include "Player.h"

#include "graphicsModule/GraphicsLetter.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/PhysicsGraphicsObject.h"
#include "graphicsModule/Text.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletCollision/CollisionShapes/btCollisionShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <memory>

namespace {

constexpr float lineSize = 1.0F;  // on top of the letters' 16 units
constexpr float lineDepth = 4.0F; // before everything in the world

/// The upper right corner of the box around the body's shape, in the body's coordinates.
btVector3 topRightOf(const btRigidBody& body) {
    btVector3 low;
    btVector3 high;
    body.getCollisionShape()->getAabb(btTransform::getIdentity(), low, high);
    return high;
}

/// The letter as a polygon of the world at an offset from the body.
std::unique_ptr<GraphicsObject> bindLetter(GraphicsLetter& letter, PhysicsObject* physics,
                                           const btVector3& shift) {
    GraphicsObjectData data = letter.getData();
    data.parallax = 1.0F;
    data.z = lineDepth;
    auto bound = std::make_unique<PhysicsGraphicsObject>(data, physics);
    const btVector3 place = letter.getTransformRef().getOrigin() + shift;
    bound->localTransform.setOrigin({place.x(), place.y(), 0.0F});
    bound->ignoreAmbient = true; // words are read in the dark too
    bound->setCastsShadow(0);
    return bound;
}

} // namespace

void Player::say(const std::string& line, int frames) {
    if (sayQueue.empty() && sayTimer < 0) {
        sayTimer = 0;
    }
    sayQueue.push_back({line, std::max(frames, 1)}); // the queue moves on when the timer meets 0
}

void Player::silence() {
    sayQueue.clear();
    sayTimer = -1;
    removeSayText();
}

void Player::updateLines() {
    if (sayTimer == 0) {
        if (sayQueue.empty()) {
            showLine(idleLine);
        } else {
            showLine(sayQueue.front().text);
            sayTimer = sayQueue.front().frames;
            sayQueue.pop_front();
        }
    }
    --sayTimer;
}

void Player::showLine(const std::string& line) {
    removeSayText();
    if (line.empty()) {
        return;
    }
    sayText = new Text(line, 0.0F, 0.0F, lineSize, 1.0F, 1.0F, 1.0F);
    const btVector3 corner = topRightOf(body());
    const btVector3 shift(corner.x() - sayText->getTextWidth() / 2.0F, corner.y(), 0.0F);
    for (GraphicsObject* child : sayText->releaseChildren()) {
        const std::unique_ptr<GraphicsLetter> letter(static_cast<GraphicsLetter*>(child));
        sayText->addChild(bindLetter(*letter, physicsObject, shift).release());
    }
    graphicsModule().addObject(sayText);
}

void Player::removeSayText() {
    if (sayText != nullptr) {
        graphicsModule().removeObject(sayText);
        sayText = nullptr;
    }
}
