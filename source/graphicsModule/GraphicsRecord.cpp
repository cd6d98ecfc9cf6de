// Reading graphics objects and their modifiers from maps and saves. Nothing that was built stays
// behind when a record turns out to be damaged.

#include "MultiGraphics.h"
#include "TexcoordChanger.h"
#include "TextStream.h"
#include "TextureStore.h"
#include "TransformGraphicsObject.h"
#include "TriangleMesh.h"
#include "WaterGraphics.h"

#include <array>
#include <memory>

namespace {

template <class T>
GraphicsObject* make(TextReader& stream) {
    return new T(stream);
}

struct RecordReader {
    int type;
    GraphicsObject* (*read)(TextReader& stream);
};

constexpr std::array<RecordReader, 6> recordReaders{{
    {1, make<TransformGraphicsObject>},
    {2, make<PhysicsGraphicsObject>},
    {3, make<MultiGraphics>},
    {4, make<TriangleMesh>},
    {5, make<WaterGraphics>},
    {6, make<StaticWaterGraphics>},
}};

/// Counts how deep groups lie within groups, so that a damaged file cannot exhaust the stack.
class NestingGuard {
public:
    explicit NestingGuard(const TextReader& stream) {
        if (depth == deepest) {
            stream.fail();
        }
        ++depth;
    }
    ~NestingGuard() { --depth; }
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

private:
    static constexpr int deepest = 16;
    static inline int depth = 0;
};

void readVertices(TextReader& stream, GraphicsObjectData& data) {
    const std::size_t floats = stream.readCount();
    if (floats % 2 != 0) {
        stream.fail();
    }
    data.vertices.resize(floats);
    data.colours.resize(floats * 2);
    data.texcoords.resize(floats);
    for (std::size_t i = 0; i < floats; i += 2) {
        float* colour = &data.colours[i * 2];
        stream >> data.vertices[i] >> data.vertices[i + 1];
        stream >> colour[0] >> colour[1] >> colour[2] >> colour[3];
        stream >> data.texcoords[i] >> data.texcoords[i + 1];
    }
}

std::vector<Gr_Modifier*> readModifiers(TextReader& stream) {
    const std::size_t count = stream.readCount();
    std::vector<std::unique_ptr<Gr_Modifier>> modifiers;
    for (std::size_t i = 0; i < count; ++i) {
        if (std::unique_ptr<Gr_Modifier> modifier{readModifier(stream)}) {
            modifiers.push_back(std::move(modifier));
        }
    }
    std::vector<Gr_Modifier*> released;
    released.reserve(modifiers.size());
    for (std::unique_ptr<Gr_Modifier>& modifier : modifiers) {
        released.push_back(modifier.release());
    }
    return released;
}

} // namespace

GraphicsObject* readGraphicsObject(TextReader& stream) {
    stream.setRecord("graphics object");
    const NestingGuard guard(stream);
    const int type = stream.read<int>();
    for (const RecordReader& reader : recordReaders) {
        if (reader.type == type) {
            return reader.read(stream);
        }
    }
    stream.fail();
}

GraphicsObjectData readGraphicsObjectData(TextReader& stream) {
    GraphicsObjectData data;
    readVertices(stream, data);
    readLook(stream, data);
    return data;
}

void readLook(TextReader& stream, GraphicsObjectData& data) {
    data.texture = textureStore().find(stream.read<std::string>());
    stream >> data.parallax >> data.z;
    data.modifiers = readModifiers(stream);
    stream.setRecord("graphics object");
}

Gr_Modifier* readModifier(TextReader& stream) {
    stream.setRecord("graphics modifier");
    if (stream.read<int>() == 0) {
        return new TexcoordChanger(stream);
    }
    return nullptr;
}
