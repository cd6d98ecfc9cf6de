#include "ShadowStrips.h"

#include "Camera.h"
#include "GraphicsObjecte.h"
#include "LightAdd.h"
#include "TextureStore.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float reach = 80.5F;           // length of a strip, in sizes of its light
constexpr float lowShapeShare = 0.9175F; // how high a low shape counts, of its height
constexpr float widestAngle = -0.5F;     // cosine; see `needsFoot`
constexpr PaintColour blocked{0.0F, 0.0F, 0.0F, 1.0F};

constexpr const char* lowShapeTexture = "pap.tga";

PaintPoint operator+(PaintPoint a, PaintPoint b) {
    return {a.x + b.x, a.y + b.y};
}

PaintPoint operator-(PaintPoint a, PaintPoint b) {
    return {a.x - b.x, a.y - b.y};
}

PaintPoint operator*(PaintPoint a, float factor) {
    return {a.x * factor, a.y * factor};
}

float dot(PaintPoint a, PaintPoint b) {
    return a.x * b.x + a.y * b.y;
}

/// The way from the light to a point that lies `depth` behind or before the plane of the light.
PaintPoint directionTo(PaintPoint way, float depth) {
    const float length = std::sqrt(dot(way, way) + depth * depth);
    return length > 0.0F ? way * (1.0F / length) : PaintPoint{0.0F, 0.0F};
}

/// A light close to a long wall sees its ends in nearly opposite directions: the far edge of a quad
/// over the whole wall would cut across not far behind it, and light would come through.
bool needsFoot(PaintPoint firstDirection, PaintPoint secondDirection) {
    return dot(firstDirection, secondDirection) < widestAngle;
}

/// Where a strip over the edge from a to b gets one more pair of points: on the edge nearest to the
/// light, running straight away from it.
struct Foot {
    PaintPoint near, direction;
};

Foot footOf(PaintPoint a, PaintPoint b, PaintPoint light) {
    const PaintPoint edge = b - a;
    const float share = std::clamp(dot(light - a, edge) / dot(edge, edge), 0.0F, 1.0F);
    const float length = std::sqrt(dot(edge, edge));
    return {a + edge * share, {edge.y / length, -edge.x / length}};
}

} // namespace

void ShadowStrips::beginFrame(const Camera& camera) {
    ++frame;
    vertices.clear();
    view = &camera;
    lowShape = textureStore().find(lowShapeTexture);
    Painter& paint = painter();
    paint.pushTransform();
    camera.applyTransform(1.0F);
    worldView = paint.getTransform();
    paint.popTransform();
}

void ShadowStrips::draw(const GraphicsObjecte& polygon, ShadowOutline& note,
                        const LightAdd& light) {
    const Outline outline = outlineOf(polygon, note);
    const btVector3& source = light.getShadowOrigin();
    if (const Chain chain = findLitChain(outline, {source.x(), source.y()}); chain.count > 1) {
        buildStrip(outline, chain, light, note.z);
        paintStrip(polygon.getParallax());
    }
}

ShadowStrips::Outline ShadowStrips::outlineOf(const GraphicsObjecte& polygon, ShadowOutline& note) {
    if (note.frame != frame) {
        const GraphicsObjectData& data = polygon.getData();
        btTransform transform;
        polygon.getTransform(transform);
        const btMatrix3x3& basis = transform.getBasis();
        const btVector3& origin = transform.getOrigin();
        const float height = data.texture >= 0 && data.texture == lowShape ? lowShapeShare : 1.0F;
        note = {frame, vertices.size(), data.vertices.size() / 2, origin.z()};
        for (std::size_t i = 0; i + 1 < data.vertices.size(); i += 2) {
            const float x = data.vertices[i];
            const float y = data.vertices[i + 1] * height;
            vertices.push_back({basis[0].x() * x + basis[0].y() * y + origin.x(),
                                basis[1].x() * x + basis[1].y() * y + origin.y()});
        }
    }
    return {vertices.data() + note.first, note.count};
}

/// The edges that face the light, by their vertices. Edge i runs from vertex i to the next one.
ShadowStrips::Chain ShadowStrips::findLitChain(Outline outline, PaintPoint light) {
    const std::size_t count = outline.size();
    if (count < 2) {
        return {0, 0};
    }
    sides.resize(std::max(sides.size(), count));
    PaintPoint a = outline[count - 1];
    bool wasLit = false;
    std::size_t start = 0;
    std::size_t end = 0;
    int starts = 0;
    // The last edge is looked at twice: first for what comes before edge 0.
    for (std::size_t i = 0; i <= count; ++i) {
        const std::size_t edge = (i == 0 ? count : i) - 1;
        a = outline[edge];
        const PaintPoint b = outline[edge + 1 == count ? 0 : edge + 1];
        const float side = (light.x - a.x) * (b.y - a.y) + (light.y - a.y) * (a.x - b.x);
        const bool lit = side < 0.0F;
        sides[edge] = side;
        if (i > 0 && lit != wasLit) {
            (lit ? start : end) = edge;
            starts += lit ? 1 : 0;
        }
        wasLit = lit;
    }
    if (starts == 0) {
        return {0, 0};
    }
    if (starts > 1) {
        return longestLitChain(count);
    }
    return {start, (end + count - start) % count + 1};
}

/// Edges in line with the light, or without a length, may come out as lit or not by rounding. They
/// must not tear the chain: it is what remains without the run that faces away most decidedly.
ShadowStrips::Chain ShadowStrips::longestLitChain(std::size_t edges) const {
    std::size_t first = 0;
    while (sides[first] >= 0.0F) {
        ++first;
    }
    float mostAway = -1.0F;
    std::size_t darkStart = 0;
    std::size_t darkEnd = 0;
    for (std::size_t i = 0; i < edges;) {
        std::size_t next = i + 1;
        float away = 0.0F;
        while (next < edges && sides[(first + next) % edges] >= 0.0F) {
            away += sides[(first + next) % edges];
            ++next;
        }
        if (next > i + 1 && away > mostAway) {
            mostAway = away;
            darkStart = first + i + 1;
            darkEnd = first + next;
        }
        i = next;
    }
    return {darkEnd % edges, edges - (darkEnd - darkStart) + 1};
}

void ShadowStrips::buildStrip(Outline outline, const Chain& chain, const LightAdd& light, float z) {
    const btVector3& source = light.getShadowOrigin();
    const PaintPoint origin{source.x(), source.y()};
    const float length = light.getProperties().size * reach;
    const float depth = z - source.z();
    strip.clear();
    PaintPoint lastDirection{};
    std::size_t vertex = chain.first;
    for (std::size_t i = 0; i < chain.count; ++i) {
        const PaintPoint near = outline[vertex];
        const PaintPoint direction = directionTo(near - origin, depth);
        if (i > 0 && needsFoot(lastDirection, direction)) {
            const Foot foot = footOf(strip[strip.size() - 2], near, origin);
            strip.push_back(foot.near);
            strip.push_back(foot.near + foot.direction * length);
        }
        strip.push_back(near);
        strip.push_back(near + direction * length);
        lastDirection = direction;
        vertex = vertex + 1 == outline.size() ? 0 : vertex + 1;
    }
}

void ShadowStrips::paintStrip(float parallax) const {
    Painter& paint = painter();
    paint.pushTransform();
    if (parallax == 1.0F) {
        paint.setTransform(worldView);
    } else {
        view->applyTransform(parallax);
    }
    paint.quadStrip(strip, blocked);
    paint.popTransform();
}
