#include "ProtagonistParts.h"

#include "graphicsModule/MultiGraphics.h"
#include "graphicsModule/PhysicsGraphicsObject.h"
#include "graphicsModule/TextureStore.h"
#include "physicsModule/CollisionRules.h"
#include "physicsModule/PhysicsObject.h"

#include <algorithm>
#include <array>

namespace {

constexpr int polygonType = 2;
constexpr int groupType = 3;
constexpr std::size_t partCount = 4;

constexpr std::size_t backLeg = 0;
constexpr std::size_t torso = 1;
constexpr std::size_t frontLeg = 2;

constexpr float startX = 500.0F;
constexpr float startY = 500.0F;
constexpr float bodyRadius = 15.0F;
constexpr float bounce = 1.0F; // times that of the ground, which has none
constexpr float friction = 1.0F;
constexpr float mass = 1.0F;
constexpr float depth = -0.4F;

// The pictures look left. Their outermost fortieth is not shown, which keeps what filtering brings
// in from the opposite edge away.
constexpr std::array leftTexcoords{0.025F, 0.025F, 0.025F, 0.975F, 0.975F, 0.975F, 0.975F, 0.025F};
constexpr std::array rightTexcoords{0.975F, 0.025F, 0.975F, 0.975F, 0.025F, 0.975F, 0.025F, 0.025F};
constexpr float leftBelow = 0.055F; // the first coordinate of who looks left

/// Half sizes in world units.
struct PartLook {
    const char* texture;
    float halfWidth, halfHeight;
    float shiftY;
};

constexpr std::array<PartLook, partCount> looks{{
    {"leg.tga", 15.0F, 15.0F, 0.0F},
    {"tolm.tga", 16.0F, 16.0F, 0.0F},
    {"leg2.tga", 15.0F, 15.0F, 0.0F},
    {"han.tga", 3.5F, 9.0F, 9.0F},
}};

void setTexcoords(GraphicsObjectData& data, bool left) {
    const auto& texcoords = left ? leftTexcoords : rightTexcoords;
    std::copy(texcoords.begin(), texcoords.end(), data.texcoords.begin());
}

GraphicsObject* makePart(const PartLook& look, PhysicsObject* physics) {
    GraphicsObjectData data =
        makeBoxData(look.halfWidth, look.halfHeight, textureStore().find(look.texture), depth, 1.0F,
                    0, 1.0F, 1.0F, 1.0F, 1.0F);
    setTexcoords(data, true);
    auto* part = new PhysicsGraphicsObject(data, physics);
    part->moveBy(0.0F, look.shiftY);
    part->updateLocalBounds();
    // A shadow would be as square as the part, and keep the lamp off the one who is to be seen.
    part->setCastsShadow(0);
    return part;
}

bool isPart(const GraphicsObject* child) {
    return child->type == polygonType &&
           static_cast<const PhysicsGraphicsObject*>(child)->getData().texcoords.size() >=
               leftTexcoords.size();
}

} // namespace

bool ProtagonistParts::fit(const GraphicsObject& graphics) {
    if (graphics.type != groupType) {
        return false;
    }
    const auto& children = static_cast<const MultiGraphics&>(graphics).getChildren();
    return children.size() >= partCount && std::all_of(children.begin(), children.end(), isPart);
}

ProtagonistParts::ProtagonistParts(GraphicsObject& graphics)
    : group(static_cast<MultiGraphics&>(graphics)) {}

PhysicsGraphicsObject& ProtagonistParts::part(std::size_t index) const {
    return static_cast<PhysicsGraphicsObject&>(*group.getChildren()[index]);
}

bool ProtagonistParts::looksLeft() const {
    return part(backLeg).getData().texcoords.front() < leftBelow;
}

void ProtagonistParts::look(bool left) {
    const std::size_t arm = group.getChildren().size() - 1;
    for (std::size_t i = 0; i < arm; ++i) {
        setTexcoords(part(i).getData(), left);
    }
}

void ProtagonistParts::take(const ProtagonistPose& pose) {
    part(backLeg).localTransform.setOrigin(pose.backLeg);
    part(frontLeg).localTransform.setOrigin(pose.frontLeg);
    const btVector3 lift(0.0F, pose.bob, 0.0F);
    part(torso).localTransform = btTransform(btMatrix3x3::getIdentity(), lift);
    const btQuaternion turn(btVector3(0.0F, 0.0F, 1.0F), pose.arm);
    part(group.getChildren().size() - 1).localTransform = btTransform(turn, lift);
}

SceneParts makeProtagonistParts() {
    PhysicsObject* physics = createSphere(startX, startY, bodyRadius, bounce, friction, mass);
    physics->kind = collisionKind::barrier; // as all, and feels the lianas that others pass through
    auto* group = new MultiGraphics;
    for (const PartLook& look : looks) {
        group->addChild(makePart(look, physics));
    }
    return {physics, group, sceneObjectType::testPlayer};
}
