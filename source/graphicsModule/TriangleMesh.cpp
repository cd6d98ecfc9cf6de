#include "TriangleMesh.h"

#include "Camera.h"
#include "GraphicsModule.h"
#include "Painter.h"
#include "TextureStore.h"

TriangleMesh::TriangleMesh(const GraphicsObjectData& shape)
    : PhysicsGraphicsObject(shape, nullptr) {
    type = 4;
}

TriangleMesh::TriangleMesh(TextReader& stream) : TriangleMesh(readGraphicsObjectData(stream)) {}

void TriangleMesh::draw() {
    Painter& paint = painter();
    btTransform transform;
    getTransform(transform);
    paint.pushTransform();
    graphicsModule().camera->applyTransform(data.parallax);
    paint.multiply(transform);
    textureStore().bind(data.texture);
    if (outlined) {
        paint.setWireframe(true);
    }
    paint.triangles(arrays());
    if (outlined) {
        paint.setWireframe(false);
    }
    paint.popTransform();
    applyModifiers();
}

void TriangleMesh::write(TextWriter& stream) const {
    GraphicsObjecte::write(stream);
}
