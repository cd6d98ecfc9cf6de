#include "ShapeBuilder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mapc {

namespace {

constexpr float leastArea = 1.0F;
constexpr int ellipseCorners = 16;
constexpr std::size_t mostCorners = 2000; // cutting ears takes the cube of it

float radians(float degrees) {
    return degrees * std::numbers::pi_v<float> / 180.0F;
}

/// The engine's own circle: its corners get closer the larger it is.
Outline circleOutline(float radius) {
    constexpr float fullTurn = 6.28318F;
    const float corners = std::max(5.0F, 5.0F + 5.0F * std::log(radius));
    Outline outline;
    for (float angle = 0.0F; angle <= fullTurn; angle += fullTurn / corners) {
        outline.push_back({radius * std::sin(angle), radius * std::cos(angle)});
    }
    return outline;
}

Outline ellipseOutline(Point half) {
    Outline outline;
    for (int i = 0; i < ellipseCorners; ++i) {
        const float angle =
            2.0F * std::numbers::pi_v<float> * static_cast<float>(i) / ellipseCorners;
        outline.push_back({half.x * std::sin(angle), half.y * std::cos(angle)});
    }
    return outline;
}

Shape roundShape(Point half) {
    Shape shape;
    if (std::abs(half.x - half.y) < 0.01F) {
        shape.kind = ShapeKind::disc;
        shape.radius = half.x;
        shape.outline = circleOutline(half.x);
    } else {
        shape.kind = ShapeKind::convex;
        shape.outline = ellipseOutline(half);
    }
    return shape;
}

Shape boxShape(Point half) {
    Shape shape;
    shape.kind = ShapeKind::box;
    shape.half = half;
    shape.outline = {{-half.x, -half.y}, {-half.x, half.y}, {half.x, half.y}, {half.x, -half.y}};
    return shape;
}

/// The polygon with y up, clockwise and without repeated corners.
Outline cleanPolygon(const TiledObject& object) {
    Outline outline;
    for (const Point& point : object.polygon) {
        const Point upright{point.x, -point.y};
        if (outline.empty() || length(upright - outline.back()) > 0.01F) {
            outline.push_back(upright);
        }
    }
    if (outline.size() > 1 && length(outline.front() - outline.back()) <= 0.01F) {
        outline.pop_back();
    }
    if (outline.size() > mostCorners) {
        throw std::string("the polygon has too many corners");
    }
    if (outline.size() < 3 || std::abs(signedArea(outline)) < leastArea) {
        throw std::string("the polygon is degenerate: it has no area");
    }
    if (signedArea(outline) > 0.0F) {
        std::ranges::reverse(outline);
    }
    return outline;
}

PlacedShape polygonShape(const TiledObject& object, const Pose& frame, bool asMesh) {
    Outline outline = cleanPolygon(object);
    const Point centre = centroid(outline);
    Shape shape;
    if (asMesh) {
        shape.kind = ShapeKind::mesh;
        outline = triangulate(outline);
        if (outline.empty()) {
            throw std::string("the polygon crosses itself");
        }
    } else if (isConvex(outline)) {
        shape.kind = ShapeKind::convex;
    } else {
        throw std::string("the polygon is concave: divide it, or make it a Mesh");
    }
    for (Point& point : outline) {
        point = point - centre;
    }
    shape.outline = std::move(outline);
    return {shape, {frame.toWorld(centre), frame.angle}};
}

} // namespace

Pose Placement::frameOf(const TiledObject& object) const {
    return {toWorld(object.position), radians(-object.rotation)};
}

Point Placement::centreOf(const TiledObject& object) const {
    return frameOf(object).toWorld({object.width * 0.5F, -object.height * 0.5F});
}

PlacedShape buildShape(const TiledObject& object, const Placement& placement, bool asMesh) {
    const Pose frame = placement.frameOf(object);
    if (object.shape == TiledShape::polygon) {
        return polygonShape(object, frame, asMesh);
    }
    if (asMesh) {
        throw std::string("a Mesh must be a polygon");
    }
    if (object.shape != TiledShape::rectangle && object.shape != TiledShape::ellipse) {
        throw std::string("needs an area: a rectangle, an ellipse or a polygon");
    }
    const Point half{object.width * 0.5F, object.height * 0.5F};
    if (half.x * half.y * 4.0F < leastArea) {
        throw std::string("has no area");
    }
    const bool round = object.shape == TiledShape::ellipse;
    return {round ? roundShape(half) : boxShape(half), {placement.centreOf(object), frame.angle}};
}

ConvexArea areaOf(const Shape& shape, const Pose& pose) {
    if (shape.kind == ShapeKind::disc) {
        return {{pose.origin}, shape.radius};
    }
    ConvexArea area;
    for (const Point& point : shape.outline) {
        area.outline.push_back(pose.toWorld(point));
    }
    return area;
}

} // namespace mapc
