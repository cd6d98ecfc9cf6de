#include "RecordWriters.h"

namespace mapc {

namespace {

/// Codes of the stored joints, which are Bullet's.
enum JointCode { hingeCode = 4, sliderCode = 9 };

void writeHinge(TextWriter& stream, const HingeJoint& joint) {
    stream << static_cast<int>(hingeCode) << joint.a << joint.pivotA.x << joint.pivotA.y
           << joint.lower << joint.upper << joint.motorSpeed.has_value();
    if (joint.motorSpeed.has_value()) {
        stream << *joint.motorSpeed << joint.motorImpulse;
    }
    stream << joint.b;
    if (joint.b != worldIndex) {
        stream << joint.pivotB.x << joint.pivotB.y;
    }
}

void writeSlider(TextWriter& stream, const SliderJoint& joint) {
    constexpr bool turnMotor = false;
    stream << static_cast<int>(sliderCode) << joint.a << joint.frameA.x << joint.frameA.y
           << joint.turnLower << joint.turnUpper << turnMotor << joint.b << joint.frameB.x
           << joint.frameB.y << joint.lower.x << joint.lower.y << joint.upper.x << joint.upper.y;
    stream << joint.motorSpeed.has_value();
    if (joint.motorSpeed.has_value()) {
        stream << joint.motorSpeed->x << joint.motorSpeed->y << joint.motorForce.x
               << joint.motorForce.y;
    }
    stream << joint.spring;
    if (joint.spring) {
        stream << 0.0F << 0.0F << joint.restAngle;
    }
}

} // namespace

void writeJoint(TextWriter& stream, const Joint& joint) {
    if (const auto* hinge = std::get_if<HingeJoint>(&joint)) {
        writeHinge(stream, *hinge);
    } else {
        writeSlider(stream, std::get<SliderJoint>(joint));
    }
}

} // namespace mapc
