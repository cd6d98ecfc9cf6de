#include "Ratio.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Painter.h"
#include "graphicsModule/TransformGraphicsObject.h"

#include <GL/gl.h>

#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

// Polygons drawn by their objects against the same triangles as one client vertex array a texture,
// sent with bare OpenGL. A scissor of one pixel leaves the work on vertices alone.

namespace {

constexpr int corners = 8;
constexpr int textureCount = 4;
constexpr float radius = 20.0F;
constexpr float farAway = 5000.0F; // out of a view of 1280 by 800 round the origin

using Polygons = std::vector<std::unique_ptr<TransformGraphicsObject>>;

GraphicsObjectData makePolygonData(int texture) {
    GraphicsObjectData data;
    for (int i = 0; i < corners; ++i) {
        const float angle = static_cast<float>(i) * SIMD_2_PI / corners;
        data.vertices.insert(data.vertices.end(),
                             {radius * std::sin(angle), radius * std::cos(angle)});
        data.texcoords.insert(data.texcoords.end(), {std::sin(angle), std::cos(angle)});
        data.colours.insert(data.colours.end(), {1.0F, 0.5F, 0.25F, 0.75F});
    }
    data.texture = texture;
    return data;
}

/// Spread over the view, in the frame's order: runs of equal texture.
Polygons makePolygons(int count, float shift) {
    Polygons polygons;
    for (int i = 0; i < count; ++i) {
        const float x = shift + static_cast<float>(i * 37 % 1200) - 600.0F;
        const float y = static_cast<float>(i * 53 % 720) - 360.0F;
        polygons.push_back(std::make_unique<TransformGraphicsObject>(
            x, y, makePolygonData(i * textureCount / count)));
        polygons.back()->getTransformRef().getBasis().setEulerZYX(0, 0, static_cast<float>(i));
        polygons.back()->updateBounds();
    }
    return polygons;
}

/// The world's view round the origin, and one pixel of the screen.
void prepareView() {
    graphicsModule().camera->setView(0.0F, 0.0F, 1.0F);
    graphicsModule().update();
    painter().setScissor(0, 0, 1, 1);
}

void drawPolygons(const Polygons& polygons) {
    for (const std::unique_ptr<TransformGraphicsObject>& polygon : polygons) {
        polygon->draw();
    }
    painter().flush();
    glFinish();
}

/// The polygons' triangles, placed on the screen for good.
class BareArrays {
public:
    explicit BareArrays(const Polygons& polygons) : runs(textureCount) {
        for (const std::unique_ptr<TransformGraphicsObject>& polygon : polygons) {
            add(*polygon);
        }
    }

    void draw() const {
        glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
        for (std::size_t i = 0; i < runs.size(); ++i) {
            const Run& run = runs[i];
            glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(i));
            glVertexPointer(3, GL_FLOAT, sizeof(PaintVertex), &run.vertices.data()->x);
            glTexCoordPointer(2, GL_FLOAT, sizeof(PaintVertex), &run.vertices.data()->u);
            glColorPointer(4, GL_FLOAT, sizeof(PaintVertex), &run.vertices.data()->r);
            glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(run.indices.size()), GL_UNSIGNED_INT,
                           run.indices.data());
        }
        glPopClientAttrib();
        glFinish();
    }

private:
    struct Run {
        std::vector<PaintVertex> vertices;
        std::vector<GLuint> indices;
    };

    void add(TransformGraphicsObject& polygon) {
        const GraphicsObjectData& data = polygon.getData();
        Run& run = runs[static_cast<std::size_t>(data.texture)];
        const auto base = static_cast<GLuint>(run.vertices.size());
        for (std::size_t i = 0; i < corners; ++i) {
            const btVector3 place = polygon.getTransformRef() *
                                    btVector3(data.vertices[2 * i], data.vertices[2 * i + 1], 0.0F);
            run.vertices.push_back(
                {place.x() + logicalWidth / 2.0F, place.y() + logicalHeight / 2.0F, 0.0F,
                 data.texcoords[2 * i], data.texcoords[2 * i + 1], data.colours[4 * i],
                 data.colours[4 * i + 1], data.colours[4 * i + 2], data.colours[4 * i + 3]});
        }
        for (GLuint i = 2; i < corners; ++i) {
            run.indices.insert(run.indices.end(), {base, base + i - 1, base + i});
        }
    }

    std::vector<Run> runs;
};

void drawInView(benchmark::State& state) {
    const Polygons polygons = makePolygons(static_cast<int>(state.range(0)), 0.0F);
    const BareArrays bare(polygons);
    prepareView();
    compare(
        state, 200, 1.3, [&polygons] { drawPolygons(polygons); }, [&bare] { bare.draw(); });
}

void drawOutOfView(benchmark::State& state) {
    const Polygons seen = makePolygons(static_cast<int>(state.range(0)), 0.0F);
    const Polygons unseen = makePolygons(static_cast<int>(state.range(0)), farAway);
    prepareView();
    compare(
        state, 200, 0.1, [&unseen] { drawPolygons(unseen); }, [&seen] { drawPolygons(seen); });
}

} // namespace

BENCHMARK(drawInView)->Arg(300)->Arg(1000)->Iterations(1);
BENCHMARK(drawOutOfView)->Arg(300)->Arg(1000)->Iterations(1);
