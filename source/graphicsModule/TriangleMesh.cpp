#include "TriangleMesh.h"

#include "GraphicsModule.h"
#include "Painter.h"

TriangleMesh::TriangleMesh(const GraphicsObjectData& shape)
    : PhysicsGraphicsObject(shape, nullptr) {
    type = 4;
}

TriangleMesh::TriangleMesh(TextReader& stream) : TriangleMesh(readGraphicsObjectData(stream)) {}

void TriangleMesh::draw() {
    Painter& paint = beginPainting(graphicsModule());
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
