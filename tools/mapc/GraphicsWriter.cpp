#include "RecordWriters.h"

#include "Texcoords.h"

#include <cmath>

namespace mapc {

namespace {

enum RecordType {
    transformRecord = 1,
    physicsRecord = 2,
    groupRecord = 3,
    meshRecord = 4,
    waveRecord = 5,
    stillWaterRecord = 6,
};

RecordType recordTypeOf(const Part& part, bool followsBody) {
    if (part.shape.kind == ShapeKind::mesh) {
        return meshRecord;
    }
    return followsBody ? physicsRecord : transformRecord;
}

/// Where the drawn polygon stands, seen from the frame that its record is told in: its own, that of
/// the body that it follows, or, of a mesh without a body, the world.
Pose placeIn(RecordType type, const Part& part, const LevelObject& object) {
    if (type == transformRecord) {
        return {};
    }
    if (!object.body.has_value()) {
        return part.pose;
    }
    return {object.pose.toLocal(part.pose.origin), part.pose.angle - object.pose.angle};
}

void writeSheet(TextWriter& stream, const SpriteSheet& sheet) {
    constexpr int changerType = 0;
    constexpr unsigned firstFrame = 1;
    stream << changerType << sheet.rows << 1.0F / static_cast<float>(sheet.columns)
           << 1.0F / static_cast<float>(sheet.rows) << sheet.oneShot << sheet.columns << sheet.delay
           << firstFrame;
}

/// The end that the records of polygons and of water share.
void writeLook(TextWriter& stream, const Appearance& look) {
    stream << (look.texture.empty() ? "unknown" : look.texture.c_str()) << look.parallax << look.z;
    stream << static_cast<unsigned>(look.sheet.has_value());
    if (look.sheet.has_value()) {
        writeSheet(stream, *look.sheet);
    }
}

/// The engine hangs columns 10 units apart from the left edge, as long as they stand before the
/// right one. Half of that more lets the last column stand where the water nearest ends.
void writeWater(TextWriter& stream, const Part& part, Surface surface) {
    constexpr float halfColumn = 5.0F;
    const Point half = part.shape.half;
    const Appearance& look = part.look;
    stream << static_cast<int>(surface == Surface::waves ? waveRecord : stillWaterRecord);
    stream << -half.x << -half.y << half.x + halfColumn << half.y;
    stream << look.colour.r << look.colour.g << look.colour.b << look.colour.a;
    stream << static_cast<int>(look.texcoordMode);
    writeLook(stream, look);
}

void writePart(TextWriter& stream, const Part& part, const LevelObject& object,
               TextureSizes& textures) {
    const Appearance& look = part.look;
    const RecordType type = recordTypeOf(part, object.body.has_value());
    const Pose place = placeIn(type, part, object);
    const std::vector<Point> texcoords =
        mapTexcoords(part.shape.outline, part.pose, look, textures.sizeOf(look.texture));

    stream << static_cast<int>(type) << part.shape.outline.size() * 2;
    for (std::size_t i = 0; i < part.shape.outline.size(); ++i) {
        const Point vertex = place.toWorld(part.shape.outline[i]);
        stream << vertex.x << vertex.y << look.colour.r << look.colour.g << look.colour.b
               << look.colour.a << texcoords[i].x << texcoords[i].y;
    }
    writeLook(stream, look);
    if (type == transformRecord) {
        const float c = std::cos(part.pose.angle);
        const float s = std::sin(part.pose.angle);
        stream << part.pose.origin.x << part.pose.origin.y << c << 0.0F - s << s << c;
    }
    if (type != meshRecord) {
        stream << static_cast<int>(look.castsShadow);
    }
}

} // namespace

void writeGraphics(TextWriter& stream, const LevelObject& object, TextureSizes& textures) {
    if (object.water.has_value()) {
        writeWater(stream, object.parts.front(), *object.water);
        return;
    }
    if (object.parts.size() > 1) {
        stream << static_cast<int>(groupRecord) << object.parts.size();
    }
    for (const Part& part : object.parts) {
        writePart(stream, part, object, textures);
    }
}

} // namespace mapc
