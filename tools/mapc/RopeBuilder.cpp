#include "RopeBuilder.h"

#include "ObjectAdditions.h"
#include "ObjectClass.h"
#include "ShapeBuilder.h"

#include <algorithm>
#include <cmath>

namespace mapc {

namespace {

// Slender, smooth and heavy: so the climber neither pushes it aside nor rubs along it.
constexpr float usualThickness = 6.0F;
constexpr float usualLinkLength = 30.0F;
constexpr int looseKind = 2; // passes through loose things; the character climbs on it
constexpr float mostLinks = 200.0F;
constexpr float leastPart = 1.0F; // world units of a link or its thickness

struct Course {
    Outline line; ///< From where the rope begins, in the world.
    float thickness;
};

float atLeast(const Properties& properties, const char* name, float fallback, float least) {
    const float value = properties.number(name, fallback);
    if (value < least) {
        throw std::string("property \"") + name + "\" is too small";
    }
    return value;
}

/// A rectangle is run through from its top, or from its left if it lies.
Course courseOf(const TiledObject& source, const Placement& placement) {
    const Pose frame = placement.frameOf(source);
    const float width = source.width;
    const float height = source.height;
    Course course;
    if (source.shape == TiledShape::polyline) {
        for (const Point& point : source.polygon) {
            course.line.push_back(frame.toWorld({point.x, -point.y}));
        }
        course.thickness = usualThickness;
    } else if (source.shape == TiledShape::rectangle && height >= width) {
        course.line = {frame.toWorld({width / 2.0F, 0.0F}), frame.toWorld({width / 2.0F, -height})};
        course.thickness = width;
    } else if (source.shape == TiledShape::rectangle) {
        course.line = {frame.toWorld({0.0F, -height / 2.0F}),
                       frame.toWorld({width, -height / 2.0F})};
        course.thickness = height;
    } else {
        throw std::string("a Rope is drawn as a line or a rectangle");
    }
    course.thickness = atLeast(source.properties, "thickness", course.thickness, leastPart);
    return course;
}

float lengthOf(const Outline& line) {
    float sum = 0.0F;
    for (std::size_t i = 1; i < line.size(); ++i) {
        sum += length(line[i] - line[i - 1]);
    }
    return sum;
}

/// Points at even steps along the line, both ends included.
Outline cut(const Outline& line, std::size_t pieces) {
    const float step = lengthOf(line) / static_cast<float>(pieces);
    Outline points{line.front()};
    float ahead = step; // to the next point
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Point way = line[i] - line[i - 1];
        const float part = length(way);
        float done = 0.0F;
        while (part - done >= ahead && points.size() < pieces) {
            done += ahead;
            points.push_back(line[i - 1] + way * (done / part));
            ahead = step;
        }
        ahead -= part - done;
    }
    points.push_back(line.back());
    return points;
}

bool fills(const LevelObject& object, Point place) {
    const ConvexArea spot{{place}, 0.1F};
    return object.body.has_value() && object.body->answersContact && object.body->kind != 0 &&
           std::ranges::any_of(object.parts, [&spot](const Part& part) {
               return part.solid && overlapDepth(spot, areaOf(part.shape, part.pose)) > 0.0F;
           });
}

/// Ties the front of the line to the first body that it lies in, and takes off what is inside. The
/// place of the body in the level, or `worldIndex`.
int leaveBody(Outline& points, const Level& level) {
    const auto found = std::ranges::find_if(
        level.objects, [&points](const LevelObject& object) { return fills(object, points[0]); });
    if (found == level.objects.end()) {
        return worldIndex;
    }
    const auto outside =
        std::ranges::find_if(points, [found](Point point) { return !fills(*found, point); });
    points.erase(points.begin(), outside);
    if (points.size() < 2) {
        throw std::string("lies in object ") + std::to_string(found->id) + " altogether";
    }
    return static_cast<int>(found - level.objects.begin());
}

/// Upright where the rope hangs down, with the beginning on top. A link reaches over its hinges, so
/// that no gap shows where the rope bends.
LevelObject makeLink(const TiledObject& source, const ObjectClass& objectClass, Point from,
                     Point to, float thickness) {
    const Point way = to - from;
    const Point half{thickness / 2.0F, (length(way) + thickness) / 2.0F};
    LevelObject link;
    link.id = source.id;
    link.name = source.name;
    link.pose = {(from + to) * 0.5F, std::atan2(way.x, 0.0F - way.y)};
    link.body = readBody(source.properties, objectClass);
    link.body->kind = source.properties.integer("kind", looseKind);
    Part part;
    part.id = source.id;
    part.solid = true;
    part.look = readAppearance(source, objectClass);
    part.pose = link.pose;
    part.shape = {ShapeKind::box,
                  {{-half.x, -half.y}, {-half.x, half.y}, {half.x, half.y}, {half.x, -half.y}},
                  0.0F,
                  half};
    link.parts.push_back(std::move(part));
    return link;
}

void tie(Level& level, int a, int b, Point place) {
    const auto local = [&level, place](int index) {
        return index == worldIndex
                   ? place
                   : level.objects[static_cast<std::size_t>(index)].pose.toLocal(place);
    };
    HingeJoint joint;
    joint.a = a;
    joint.b = b;
    joint.pivotA = local(a);
    joint.pivotB = local(b);
    level.joints.emplace_back(joint);
}

} // namespace

void addRope(const TiledObject& source, const ObjectClass& objectClass, const Placement& placement,
             Level& level) {
    const Course course = courseOf(source, placement);
    const float linkLength = atLeast(source.properties, "linkLength", usualLinkLength, leastPart);
    if (lengthOf(course.line) < leastPart) {
        throw std::string("has no length");
    }
    if (lengthOf(course.line) > linkLength * mostLinks) {
        throw std::string("the rope is too long for its links");
    }
    Outline fine = cut(course.line, static_cast<std::size_t>(std::ceil(lengthOf(course.line))));
    const int start = leaveBody(fine, level);
    std::ranges::reverse(fine);
    const int end = leaveBody(fine, level);
    std::ranges::reverse(fine);
    const float links = std::max(1.0F, std::round(lengthOf(fine) / linkLength));
    const Outline points = cut(fine, static_cast<std::size_t>(links));
    const auto first = static_cast<int>(level.objects.size());
    const int last = first + static_cast<int>(points.size()) - 2;
    for (std::size_t i = 1; i < points.size(); ++i) {
        level.objects.push_back(
            makeLink(source, objectClass, points[i - 1], points[i], course.thickness));
    }
    readAdditions(source.properties, level.objects[static_cast<std::size_t>(first)]);
    tie(level, first, start, points.front());
    for (int i = first + 1; i <= last; ++i) {
        tie(level, i, i - 1, points[static_cast<std::size_t>(i - first)]);
    }
    if (end != worldIndex) {
        tie(level, last, end, points.back());
    }
}

} // namespace mapc
