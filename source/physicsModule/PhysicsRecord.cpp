#include "PhysicsObject.h"

#include "CollisionRules.h"
#include "TextStream.h"

#include <BulletCollision/CollisionShapes/btBox2dShape.h>
#include <BulletCollision/CollisionShapes/btCompoundShape.h>
#include <BulletCollision/CollisionShapes/btConvex2dShape.h>
#include <BulletCollision/CollisionShapes/btConvexHullShape.h>
#include <BulletCollision/CollisionShapes/btSphereShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <cmath>

namespace {

// What a map may hold. A record beyond these is damaged, and would choke the simulation.
constexpr float largestValue = 1e6F;   ///< Whatever is no place and no velocity.
constexpr float smallestValue = 1e-6F; ///< Sizes and masses: their inverse must stay finite.
constexpr float farthest = 1e12F;      ///< Places and velocities: things may fall for hours.
constexpr std::size_t mostPoints = 1024;
constexpr std::size_t mostChildren = 4096;

float readWithin(TextReader& stream, float lowest, float highest) {
    const auto value = stream.read<float>();
    if (!(value >= lowest && value <= highest)) {
        stream.fail();
    }
    return value;
}

float readValue(TextReader& stream) {
    return readWithin(stream, -largestValue, largestValue);
}

float readSize(TextReader& stream) {
    return readWithin(stream, smallestValue, largestValue);
}

/// 0 is the mass of a static body.
float readMass(TextReader& stream) {
    const float mass = readWithin(stream, 0.0F, largestValue);
    if (mass != 0.0F && mass < smallestValue) {
        stream.fail();
    }
    return mass;
}

int readKind(TextReader& stream) {
    const auto kind = stream.read<int>();
    if (!collisionFilter(kind, false)) {
        stream.fail();
    }
    return kind;
}

std::size_t readCountUpTo(TextReader& stream, std::size_t most) {
    const std::size_t count = stream.readCount();
    if (count < 1 || count > most) {
        stream.fail();
    }
    return count;
}

std::vector<float> readPoints(TextReader& stream) {
    std::vector<float> points(readCountUpTo(stream, mostPoints) * 2);
    for (float& value : points) {
        value = readValue(stream);
    }
    return points;
}

/// Upper left part of a basis; z stays as it is.
btMatrix3x3 readBasis(TextReader& stream) {
    btMatrix3x3 basis = btMatrix3x3::getIdentity();
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            basis[row][column] = readValue(stream);
        }
    }
    return basis;
}

btVector3 readVector(TextReader& stream, float limit) {
    const float x = readWithin(stream, -limit, limit);
    const float y = readWithin(stream, -limit, limit);
    return {x, y, 0};
}

btTransform readTransform(TextReader& stream, float limit) {
    const btVector3 origin = readVector(stream, limit);
    return btTransform(readBasis(stream), origin);
}

ShapeTree readSimpleShape(TextReader& stream, int code) {
    switch (code) {
    case SPHERE_SHAPE_PROXYTYPE:
        return makeDisc(readSize(stream));
    case CONVEX_HULL_SHAPE_PROXYTYPE:
        return makeOutline(readPoints(stream));
    case BOX_2D_SHAPE_PROXYTYPE: {
        const float halfWidth = readSize(stream);
        return makeBox(halfWidth, readSize(stream));
    }
    default:
        stream.fail();
    }
}

ShapeTree readCompound(TextReader& stream) {
    auto* compound = new btCompoundShape(true);
    ShapeTree tree(compound);
    const std::size_t count = readCountUpTo(stream, mostChildren);
    for (std::size_t i = 0; i < count; ++i) {
        const btTransform place = readTransform(stream, largestValue);
        compound->addChildShape(place, readSimpleShape(stream, stream.read<int>()).release());
    }
    return tree;
}

ShapeTree readShape(TextReader& stream, int code) {
    return code == COMPOUND_SHAPE_PROXYTYPE ? readCompound(stream) : readSimpleShape(stream, code);
}

/// The shape whose code and data are stored: the outline inside a flat convex shape.
const btCollisionShape& storedShape(const btCollisionShape& shape) {
    return shape.getShapeType() == CONVEX_2D_SHAPE_PROXYTYPE
               ? *static_cast<const btConvex2dShape&>(shape).getChildShape()
               : shape;
}

void writeTransform(TextWriter& stream, const btTransform& transform) {
    const btMatrix3x3& basis = transform.getBasis();
    stream << transform.getOrigin().x() << transform.getOrigin().y();
    stream << basis[0][0] << basis[0][1] << basis[1][0] << basis[1][1];
}

void writeShapeData(TextWriter& stream, const btCollisionShape& shape);

void writeCompound(TextWriter& stream, const btCompoundShape& compound) {
    stream << compound.getNumChildShapes();
    for (int i = 0; i < compound.getNumChildShapes(); ++i) {
        const btCollisionShape& child = storedShape(*compound.getChildShape(i));
        writeTransform(stream, compound.getChildTransform(i));
        stream << child.getShapeType();
        writeShapeData(stream, child);
    }
}

void writeShapeData(TextWriter& stream, const btCollisionShape& shape) {
    switch (shape.getShapeType()) {
    case SPHERE_SHAPE_PROXYTYPE:
        stream << static_cast<const btSphereShape&>(shape).getRadius();
        break;
    case CONVEX_HULL_SHAPE_PROXYTYPE: {
        const auto& hull = static_cast<const btConvexHullShape&>(shape);
        stream << hull.getNumPoints();
        for (int i = 0; i < hull.getNumPoints(); ++i) {
            stream << hull.getUnscaledPoints()[i].x() << hull.getUnscaledPoints()[i].y();
        }
        break;
    }
    case BOX_2D_SHAPE_PROXYTYPE: {
        const btVector3 extents =
            static_cast<const btBox2dShape&>(shape).getHalfExtentsWithMargin();
        stream << extents.x() << extents.y();
        break;
    }
    case COMPOUND_SHAPE_PROXYTYPE:
        writeCompound(stream, static_cast<const btCompoundShape&>(shape));
        break;
    default:
        break;
    }
}

} // namespace

void PhysicsObject::write(TextWriter& stream) const {
    const btCollisionShape& stored = storedShape(*shape);
    stream << stored.getShapeType() << body->getFriction() << body->getRestitution();
    stream << (body->getInvMass() == 0.0F ? 0.0F : 1.0F / body->getInvMass());
    writeShapeData(stream, stored);
    writeTransform(stream, body->getWorldTransform());
    stream << body->getLinearVelocity().x() << body->getLinearVelocity().y();
    stream << body->hasContactResponse() << kind << waterFactor;
}

PhysicsObject* readPhysicsObject(TextReader& stream) {
    stream.setRecord("physics object");
    const auto code = stream.read<int>();
    if (code == 0) {
        return nullptr;
    }
    const float friction = readValue(stream);
    const float restitution = readValue(stream);
    const float mass = readMass(stream);
    auto object = std::make_unique<PhysicsObject>(readShape(stream, code), 0.0F, 0.0F, restitution,
                                                  friction, mass);
    btRigidBody& body = *object->body;
    body.setWorldTransform(readTransform(stream, farthest));
    object->settle();
    body.setLinearVelocity(readVector(stream, farthest));
    const int flags = body.getCollisionFlags();
    body.setCollisionFlags(stream.read<bool>() ? flags & ~btCollisionObject::CF_NO_CONTACT_RESPONSE
                                               : flags | btCollisionObject::CF_NO_CONTACT_RESPONSE);
    object->kind = readKind(stream);
    object->waterFactor = readValue(stream);
    return object.release();
}
