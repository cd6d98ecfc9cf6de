#include "RecordWriters.h"

#include <algorithm>
#include <cmath>

namespace mapc {

namespace {

/// Codes of the stored shapes, which are Bullet's.
enum ShapeCode { hullCode = 4, discCode = 8, boxCode = 17, compoundCode = 31 };

ShapeCode codeOf(const Shape& shape) {
    switch (shape.kind) {
    case ShapeKind::disc:
        return discCode;
    case ShapeKind::box:
        return boxCode;
    default:
        return hullCode;
    }
}

void writeShapeData(TextWriter& stream, const Shape& shape) {
    switch (shape.kind) {
    case ShapeKind::disc:
        stream << shape.radius;
        break;
    case ShapeKind::box:
        stream << shape.half.x << shape.half.y;
        break;
    default:
        stream << static_cast<int>(shape.outline.size());
        for (const Point& point : shape.outline) {
            stream << point.x << point.y;
        }
    }
}

void writePose(TextWriter& stream, const Pose& pose) {
    const float c = std::cos(pose.angle);
    const float s = std::sin(pose.angle);
    stream << pose.origin.x << pose.origin.y << c << 0.0F - s << s << c;
}

void writeChildren(TextWriter& stream, const LevelObject& object) {
    stream << static_cast<int>(std::ranges::count(object.parts, true, &Part::solid));
    for (const Part& part : object.parts) {
        if (part.solid) {
            writePose(stream, {object.pose.toLocal(part.pose.origin), part.pose.angle});
            stream << static_cast<int>(codeOf(part.shape));
            writeShapeData(stream, part.shape);
        }
    }
}

} // namespace

void writeBody(TextWriter& stream, const LevelObject& object) {
    const Body& body = *object.body;
    const bool compound = object.parts.size() > 1;
    stream << static_cast<int>(compound ? compoundCode : codeOf(object.parts[0].shape));
    stream << body.friction << body.restitution << body.mass;
    if (compound) {
        writeChildren(stream, object);
    } else {
        writeShapeData(stream, object.parts[0].shape);
    }
    writePose(stream, object.pose);
    stream << body.velocity.x << body.velocity.y << body.answersContact << body.kind
           << body.waterFactor;
}

} // namespace mapc
