#pragma once

#include <vector>

namespace mapc {

/// A point or vector of the plane. World units, y up, unless said otherwise.
struct Point {
    float x = 0.0F;
    float y = 0.0F;

    Point operator+(Point other) const { return {x + other.x, y + other.y}; }
    Point operator-(Point other) const { return {x - other.x, y - other.y}; }
    Point operator*(float factor) const { return {x * factor, y * factor}; }
    bool operator==(const Point&) const = default;
};

using Outline = std::vector<Point>;

float dot(Point a, Point b);
float cross(Point a, Point b);
float length(Point a);
/// Counter-clockwise by `angle` radians.
Point rotate(Point point, float angle);

/// A place and a turn in the world, counter-clockwise in radians.
struct Pose {
    Point origin;
    float angle = 0.0F;

    Point toWorld(Point local) const { return origin + rotate(local, angle); }
    Point toLocal(Point world) const { return rotate(world - origin, -angle); }
};

/// Above zero for a counter-clockwise outline.
float signedArea(const Outline& outline);
Point centroid(const Outline& outline);
/// True for an outline that turns one way only, and once round.
bool isConvex(const Outline& outline);
/// The least distance between two parallel lines that hold the convex outline.
float thickness(const Outline& convex);

/// Triangles of a simple outline, three points each and clockwise; empty if it crosses itself.
Outline triangulate(Outline outline);

/// A convex outline, or a disc if `radius` is above zero (then `outline` holds its centre).
struct ConvexArea {
    Outline outline;
    float radius = 0.0F;
};

/// How deep two areas are in one another: the shortest way to part them, below zero if apart.
float overlapDepth(const ConvexArea& a, const ConvexArea& b);

} // namespace mapc
