#include "StaticWaterGraphics.h"

#include "Camera.h"
#include "GraphicsModule.h"
#include "LightAdd.h"
#include "Painter.h"
#include "TextStream.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int staticWaterType = 6;
constexpr float farthestEdge = 1e6F; // local units; what a map may hold
constexpr float shadowDepth = 1.0F;  // z up to which either way water takes part in the light
constexpr std::array<float, 4> halfShadow{0.0F, 0.0F, 0.0F, 0.5F};

/// The surface points and below each of them, in a second row, the bottom points.
std::vector<float> makeRows(const Bounds& area) {
    std::vector<float> rows;
    for (const float y : {area.top, area.bottom}) {
        float x = area.left;
        for (int i = 1; i <= StaticWaterGraphics::mostColumns && x < area.right; ++i) {
            rows.push_back(x);
            rows.push_back(y);
            x = area.left + static_cast<float>(i) * StaticWaterGraphics::columnWidth;
        }
    }
    return rows;
}

GraphicsObjectData lookOf(int texture, float z, float parallax, int texcoordMode,
                          const std::array<float, 4>& colour) {
    GraphicsObjectData look;
    look.colours.assign(colour.begin(), colour.end());
    look.texture = texture;
    look.z = z;
    look.parallax = parallax;
    look.texcoordMode = texcoordMode;
    return look;
}

GraphicsObjectData withRows(GraphicsObjectData look, const Bounds& area) {
    look.vertices = makeRows(area);
    return look;
}

float readEdge(TextReader& stream) {
    const auto edge = stream.read<float>();
    if (std::abs(edge) > farthestEdge) {
        stream.fail();
    }
    return edge;
}

/// The columns as the painter takes them, surface and bottom by turns. Waters are painted one at a
/// time, so that all of them share the room.
struct Strip {
    std::vector<float> positions, texcoords, colours;
};

} // namespace

/// What both kinds of water are stored as.
struct StaticWaterGraphics::Record {
    Bounds area;
    GraphicsObjectData look; ///< Without vertices.
};

StaticWaterGraphics::StaticWaterGraphics(float left, float bottom, float right, float top,
                                         int texture, float depth, float parallax, int texcoordMode,
                                         float r, float g, float b, float a)
    : StaticWaterGraphics(Record{{left, bottom, right, top},
                                 lookOf(texture, depth, parallax, texcoordMode, {r, g, b, a})}) {}

StaticWaterGraphics::StaticWaterGraphics(TextReader& stream)
    : StaticWaterGraphics(readRecord(stream)) {}

StaticWaterGraphics::StaticWaterGraphics(const Record& record)
    : PhysicsGraphicsObject(withRows(record.look, record.area), nullptr),
      area(record.area) {
    type = staticWaterType;
    PhysicsGraphicsObject::regenerateTexcoords();
    data.vertices.resize(data.vertices.size() / 2);
    StaticWaterGraphics::updateLocalBounds();
}

StaticWaterGraphics::Record StaticWaterGraphics::readRecord(TextReader& stream) {
    Record record{};
    for (float* edge :
         {&record.area.left, &record.area.bottom, &record.area.right, &record.area.top}) {
        *edge = readEdge(stream);
    }
    if (record.area.right - record.area.left > static_cast<float>(mostColumns) * columnWidth) {
        stream.fail();
    }
    record.look.colours.resize(4);
    for (float& channel : record.look.colours) {
        stream >> channel;
    }
    stream >> record.look.texcoordMode;
    if (record.look.texcoordMode < 0 || record.look.texcoordMode > 2) {
        stream.fail();
    }
    readLook(stream, record.look);
    return record;
}

void StaticWaterGraphics::write(TextWriter& stream) const {
    stream << type << area.left << area.bottom << area.right << area.top;
    for (const float channel : data.colours) {
        stream << channel;
    }
    stream << data.texcoordMode;
    writeLook(stream);
}

void StaticWaterGraphics::updateLocalBounds() {
    localBounds = area;
}

void StaticWaterGraphics::regenerateTexcoords() {
    std::vector<float> rows = makeRows(area);
    rows.swap(data.vertices);
    PhysicsGraphicsObject::regenerateTexcoords();
    rows.swap(data.vertices);
}

void StaticWaterGraphics::splash(float, float, float) {}

void StaticWaterGraphics::draw() {
    drawStrip();
    finishDrawing();
}

void StaticWaterGraphics::drawStrip() const {
    const GraphicsModule& module = graphicsModule();
    if (!worldBounds.overlaps(module.getView())) {
        return;
    }
    Painter& paint = beginPainting(module);
    if (outlined) {
        paint.setWireframe(true);
    }
    paintStrip({data.colours[0], data.colours[1], data.colours[2], data.colours[3]});
    if (outlined) {
        paint.setWireframe(false);
    }
    paint.popTransform();
}

void StaticWaterGraphics::finishDrawing() {
    if (debugDraw) {
        drawBoundsLine();
    }
    applyModifiers();
}

void StaticWaterGraphics::drawShadow(LightAdd& light) {
    if (castsShadow == 0 || std::abs(getZ()) > shadowDepth ||
        !light.getBounds().overlaps(worldBounds)) {
        return;
    }
    Painter& paint = painter();
    btTransform transform;
    getTransform(transform);
    transform.getOrigin().setZ(0.0F);
    paint.pushTransform();
    graphicsModule().camera->applyTransform(data.parallax);
    paint.multiply(transform);
    paintStrip(halfShadow);
    paint.popTransform();
}

void StaticWaterGraphics::paintStrip(const std::array<float, 4>& colour) const {
    static Strip strip;
    const std::size_t columns = data.vertices.size() / 2;
    if (strip.positions.size() < columns * 4) {
        strip.positions.resize(columns * 4);
        strip.texcoords.resize(columns * 4);
        strip.colours.resize(columns * 8);
    }
    float* position = strip.positions.data();
    float* texcoord = strip.texcoords.data();
    float* shade = strip.colours.data();
    const float* surface = data.texcoords.data();
    const float* bottom = surface + columns * 2;
    for (std::size_t i = 0; i < columns * 2; i += 2) {
        *position++ = data.vertices[i];
        *position++ = data.vertices[i + 1];
        *position++ = data.vertices[i];
        *position++ = area.bottom;
        *texcoord++ = surface[i];
        *texcoord++ = surface[i + 1];
        *texcoord++ = bottom[i];
        *texcoord++ = bottom[i + 1];
        shade = std::copy(colour.begin(), colour.end(), shade);
        shade = std::copy(colour.begin(), colour.end(), shade);
    }
    painter().quadStrip(
        {strip.positions.data(), strip.texcoords.data(), strip.colours.data(), columns * 2});
}
