#include "ShapeTree.h"

#include <BulletCollision/CollisionShapes/btBox2dShape.h>
#include <BulletCollision/CollisionShapes/btCompoundShape.h>
#include <BulletCollision/CollisionShapes/btConvex2dShape.h>
#include <BulletCollision/CollisionShapes/btConvexHullShape.h>
#include <BulletCollision/CollisionShapes/btSphereShape.h>

namespace {

/// Makes a round or angular solid count as its slice in the plane.
ShapeTree flatten(std::unique_ptr<btConvexShape> solid) {
    ShapeTree flat(new btConvex2dShape(solid.get()));
    static_cast<void>(solid.release()); // the tree deletes it
    return flat;
}

} // namespace

void ShapeTreeDeleter::operator()(btCollisionShape* shape) const {
    if (shape->getShapeType() == COMPOUND_SHAPE_PROXYTYPE) {
        auto* compound = static_cast<btCompoundShape*>(shape);
        for (int i = 0; i < compound->getNumChildShapes(); ++i) {
            (*this)(compound->getChildShape(i));
        }
    } else if (shape->getShapeType() == CONVEX_2D_SHAPE_PROXYTYPE) {
        (*this)(static_cast<btConvex2dShape*>(shape)->getChildShape());
    }
    delete shape;
}

ShapeTree makeDisc(float radius) {
    return flatten(std::make_unique<btSphereShape>(radius));
}

ShapeTree makeBox(float halfWidth, float halfHeight) {
    return ShapeTree(new btBox2dShape(btVector3(halfWidth, halfHeight, 0)));
}

ShapeTree makeOutline(const std::vector<float>& points) {
    auto hull = std::make_unique<btConvexHullShape>();
    for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
        hull->addPoint(btVector3(points[i], points[i + 1], 0), false);
    }
    hull->recalcLocalAabb();
    return flatten(std::move(hull));
}
