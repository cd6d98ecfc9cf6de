#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace mapc {

float dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}

float cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}

float length(Point a) {
    return std::hypot(a.x, a.y);
}

Point rotate(Point point, float angle) {
    const float c = std::cos(angle);
    const float s = std::sin(angle);
    return {point.x * c - point.y * s, point.x * s + point.y * c};
}

float signedArea(const Outline& outline) {
    float twice = 0.0F;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        // Measured from the first point, so that far from the origin no precision is lost.
        twice += cross(outline[i] - outline[0], outline[(i + 1) % outline.size()] - outline[0]);
    }
    return twice * 0.5F;
}

Point centroid(const Outline& outline) {
    Point sum;
    float weight = 0.0F;
    for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
        const Point a = outline[i] - outline[0];
        const Point b = outline[i + 1] - outline[0];
        const float area = cross(a, b);
        sum = sum + (a + b) * (area / 3.0F);
        weight += area;
    }
    return weight == 0.0F ? outline[0] : outline[0] + sum * (1.0F / weight);
}

bool isConvex(const Outline& outline) {
    const std::size_t count = outline.size();
    float turned = 0.0F;
    bool left = false;
    bool right = false;
    for (std::size_t i = 0; i < count; ++i) {
        const Point in = outline[(i + 1) % count] - outline[i];
        const Point out = outline[(i + 2) % count] - outline[(i + 1) % count];
        const float turn = std::atan2(cross(in, out), dot(in, out));
        constexpr float straight = 1e-3F;
        left = left || turn > straight;
        right = right || turn < -straight;
        turned += turn;
    }
    const bool once = std::abs(std::abs(turned) - 2.0F * std::numbers::pi_v<float>) < 0.1F;
    return once && left != right;
}

namespace {

struct Interval {
    float low = std::numeric_limits<float>::max();
    float high = std::numeric_limits<float>::lowest();
};

Interval project(const ConvexArea& area, Point axis) {
    Interval result;
    for (const Point& point : area.outline) {
        const float at = dot(point, axis);
        result.low = std::min(result.low, at - area.radius);
        result.high = std::max(result.high, at + area.radius);
    }
    return result;
}

Point unit(Point vector) {
    const float size = length(vector);
    return size > 0.0F ? vector * (1.0F / size) : Point{1.0F, 0.0F};
}

void addEdgeNormals(const ConvexArea& area, std::vector<Point>& axes) {
    for (std::size_t i = 0; area.radius == 0.0F && i < area.outline.size(); ++i) {
        const Point edge = area.outline[(i + 1) % area.outline.size()] - area.outline[i];
        axes.push_back(unit({-edge.y, edge.x}));
    }
}

void addNearestCorner(const ConvexArea& disc, const ConvexArea& other, std::vector<Point>& axes) {
    if (disc.radius == 0.0F) {
        return;
    }
    const Point centre = disc.outline[0];
    const auto nearer = [centre](Point a, Point b) {
        return length(a - centre) < length(b - centre);
    };
    axes.push_back(unit(*std::ranges::min_element(other.outline, nearer) - centre));
}

bool insideClockwise(Point a, Point b, Point c, Point point) {
    return cross(b - a, point - a) <= 0.0F && cross(c - b, point - b) <= 0.0F &&
           cross(a - c, point - c) <= 0.0F;
}

/// Whether the corner at `i` of a clockwise outline can be cut off.
bool isEar(const Outline& outline, std::size_t i) {
    const std::size_t count = outline.size();
    const Point a = outline[(i + count - 1) % count];
    const Point b = outline[i];
    const Point c = outline[(i + 1) % count];
    if (cross(b - a, c - b) >= 0.0F) {
        return false;
    }
    return std::ranges::none_of(outline, [&](Point point) {
        return point != a && point != b && point != c && insideClockwise(a, b, c, point);
    });
}

bool isFlat(const Outline& outline, std::size_t i) {
    const std::size_t count = outline.size();
    const Point b = outline[i];
    return cross(b - outline[(i + count - 1) % count], outline[(i + 1) % count] - b) == 0.0F;
}

} // namespace

float thickness(const Outline& convex) {
    std::vector<Point> axes;
    const ConvexArea area{convex, 0.0F};
    addEdgeNormals(area, axes);
    float least = std::numeric_limits<float>::max();
    for (const Point& axis : axes) {
        const Interval interval = project(area, axis);
        least = std::min(least, interval.high - interval.low);
    }
    return least;
}

Outline triangulate(Outline outline) {
    if (signedArea(outline) > 0.0F) {
        std::ranges::reverse(outline);
    }
    Outline triangles;
    while (outline.size() >= 3) {
        std::size_t i = 0;
        while (i < outline.size() && !isEar(outline, i) && !isFlat(outline, i)) {
            ++i;
        }
        if (i == outline.size()) {
            return {};
        }
        if (!isFlat(outline, i)) {
            const std::size_t count = outline.size();
            triangles.insert(triangles.end(), {outline[(i + count - 1) % count], outline[i],
                                               outline[(i + 1) % count]});
        }
        outline.erase(outline.begin() + static_cast<std::ptrdiff_t>(i));
    }
    return triangles;
}

float overlapDepth(const ConvexArea& a, const ConvexArea& b) {
    std::vector<Point> axes;
    addEdgeNormals(a, axes);
    addEdgeNormals(b, axes);
    addNearestCorner(a, b, axes);
    addNearestCorner(b, a, axes);
    float depth = std::numeric_limits<float>::max();
    for (const Point& axis : axes) {
        const Interval first = project(a, axis);
        const Interval second = project(b, axis);
        depth = std::min({depth, first.high - second.low, second.high - first.low});
    }
    return depth;
}

} // namespace mapc
