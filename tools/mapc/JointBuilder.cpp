#include "JointBuilder.h"

#include "ShapeBuilder.h"

#include <numbers>

namespace mapc {

namespace {

float angleOf(const Properties& properties, const char* name, float fallback) {
    return properties.number(name, fallback) * std::numbers::pi_v<float> / 180.0F;
}

float distance(const Properties& properties, const char* name) {
    const float value = properties.number(name, 0.0F);
    if (value < 0.0F) {
        throw std::string("property \"") + name + "\" is a distance and must not be below 0";
    }
    return value;
}

} // namespace

JointBuilder::Side JointBuilder::sideOf(const TiledObject& source, const char* property) const {
    const int id = source.properties.integer(property, 0);
    if (id == 0) {
        return {};
    }
    const auto owner = owners.find(id);
    if (owner == owners.end()) {
        throw std::string("property \"") + property + "\" refers to object " + std::to_string(id) +
            ", which is not in the level";
    }
    const LevelObject& object = level.objects[owner->second];
    if (!object.body.has_value()) {
        throw std::string("property \"") + property + "\" refers to object " + std::to_string(id) +
            ", which has no body";
    }
    return {static_cast<int>(owner->second), object.pose};
}

JointBuilder::Side JointBuilder::movingSide(const TiledObject& source) const {
    const Side side = sideOf(source, "a");
    if (side.index == worldIndex) {
        throw std::string("property \"a\" must refer to the object that moves");
    }
    if (level.objects[static_cast<std::size_t>(side.index)].body->mass == 0.0F) {
        throw std::string("property \"a\" refers to an object that cannot move");
    }
    return side;
}

// Bullet measures a hinge by the turns of the two bodies, not from how they stood when it was made:
// the limits, told from the drawn position, are shifted by the turn that was drawn.
void JointBuilder::addHinge(const TiledObject& source) {
    const Properties& properties = source.properties;
    const Side a = movingSide(source);
    const Side b = sideOf(source, "b");
    if (a.index == b.index) {
        throw std::string("properties \"a\" and \"b\" refer to one body");
    }
    const Point pivot = placement.centreOf(source);
    HingeJoint joint;
    joint.a = a.index;
    joint.b = b.index;
    joint.pivotA = a.pose.toLocal(pivot);
    joint.pivotB = b.pose.toLocal(pivot);
    const float lower = angleOf(properties, "lower", 0.0F);
    const float upper = angleOf(properties, "upper", 0.0F);
    if (lower > upper) {
        throw std::string("property \"lower\" is above \"upper\"");
    }
    if (lower < upper) { // both at 0, as the editor has them, is a hinge that turns freely
        const float drawn = b.pose.angle - a.pose.angle;
        joint.lower = drawn + lower;
        joint.upper = drawn + upper;
    }
    if (const float speed = angleOf(properties, "motorSpeed", 0.0F); speed != 0.0F) {
        joint.motorSpeed = speed;
        joint.motorImpulse = properties.number("motorImpulse", 1.0F);
    }
    level.joints.emplace_back(joint);
}

// The joint's first body is what the slider runs along, so that the limits lie in its frame.
void JointBuilder::addSlider(const TiledObject& source) {
    const Properties& properties = source.properties;
    const Side moving = movingSide(source);
    const Side rail = sideOf(source, "b");
    if (moving.index == rail.index) {
        throw std::string("properties \"a\" and \"b\" refer to one body");
    }
    const Point place = placement.centreOf(source);
    SliderJoint joint;
    joint.a = rail.index;
    joint.b = moving.index;
    joint.frameA = rail.pose.toLocal(place);
    joint.frameB = moving.pose.toLocal(place);
    joint.restAngle = rail.pose.angle - moving.pose.angle;
    if (properties.number("lower", 0.0F) > properties.number("upper", 0.0F)) {
        throw std::string("property \"lower\" is above \"upper\"");
    }
    joint.turnLower = joint.restAngle + angleOf(properties, "lower", 0.0F);
    joint.turnUpper = joint.restAngle + angleOf(properties, "upper", 0.0F);
    joint.lower = Point{} - Point{distance(properties, "left"), distance(properties, "down")};
    joint.upper = {distance(properties, "right"), distance(properties, "up")};
    const Point speed{properties.number("speedRight", 0.0F), properties.number("speedUp", 0.0F)};
    if (speed != Point{}) {
        const float force = properties.number("force", 10000.0F);
        // Bullet's motor drives the first body along, that is the second one against its sign.
        joint.motorSpeed = Point{} - speed;
        joint.motorForce = {speed.x == 0.0F ? 0.0F : force, speed.y == 0.0F ? 0.0F : force};
    }
    joint.spring = properties.flag("spring", false);
    level.joints.emplace_back(joint);
}

} // namespace mapc
