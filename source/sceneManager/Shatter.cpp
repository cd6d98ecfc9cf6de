// How an object falls to pieces: each polygon of its graphics becomes a loose body of its own.

#include "SceneObject.h"

#include "Random.h"
#include "SceneManager.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/MultiGraphics.h"
#include "physicsModule/PhysicsObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

constexpr int polygonType = 2;
constexpr int groupType = 3;

constexpr float pieceMass = 1.0F;
constexpr float scatterImpulse = 200.0F; // greatest push to a side, mass times units a second
constexpr float upwardImpulse = 30.0F;   // what each piece gets on top, so that the heap bursts
constexpr float scatterTorque = 8.0F;

/// Evenly spread over -1 to 1.
float drawSigned() {
    return static_cast<float>(drawRandom() / 16383.5 - 1.0);
}

/// Takes an object's graphics apart and gives each piece a body.
class Breaker {
public:
    explicit Breaker(const btTransform& origin) : place(origin) {}

    void breakGroup(MultiGraphics* group) {
        for (GraphicsObject* child : group->releaseChildren()) {
            if (child->type == polygonType) {
                addMember(child);
            } else if (child->type == groupType) {
                breakNestedGroup(static_cast<MultiGraphics*>(child));
            } else {
                delete child;
            }
        }
        delete group;
    }

    /// A polygon by itself keeps its vertices and takes the object's place.
    void breakPolygon(GraphicsObject* polygon) {
        addPiece(polygon, createBox(0.0F, 0.0F, 1.0F, 1.0F, 0.0F, 0.0F, pieceMass), place);
    }

    const std::vector<SceneParts>& getPieces() const { return pieces; }

private:
    /// A direct member of the object's group: its box is that of what was seen of it.
    void addMember(GraphicsObject* polygon) {
        polygon->updateBounds(); // it may never have been drawn
        polygon->transformVertices(place);
        const btVector3 centre = polygon->getCentre();
        polygon->centreVertices();
        const Bounds bounds = polygon->getBounds();
        PhysicsObject* physics =
            createBox(0.0F, 0.0F, (bounds.right - bounds.left) / 2.0F,
                      (bounds.top - bounds.bottom) / 2.0F, 0.0F, 0.5F, pieceMass);
        addPiece(polygon, physics, uprightAt(place.getOrigin() + centre));
    }

    void breakNestedGroup(MultiGraphics* group) {
        for (GraphicsObject* child : group->releaseChildren()) {
            if (child->type == polygonType) {
                addNestedMember(child);
            } else {
                delete child;
            }
        }
        delete group;
    }

    void addNestedMember(GraphicsObject* polygon) {
        polygon->transformVertices(place);
        const btVector3 centre = polygon->getCentre();
        polygon->centreVertices();
        addPiece(polygon, createBox(0.0F, 0.0F, 1.0F, 1.0F, 0.0F, 0.0F, pieceMass),
                 uprightAt(place.getOrigin() + centre));
    }

    void addPiece(GraphicsObject* polygon, PhysicsObject* physics, const btTransform& at) {
        physics->body->setWorldTransform(at);
        physics->previousTransform = at; // a frame before the next step draws it in place
        physics->renderTransform = at;
        polygon->setPhysicsObject(physics);
        polygon->updateLocalBounds();
        pieces.push_back({physics, polygon, sceneObjectType::plain});
    }

    static btTransform uprightAt(const btVector3& origin) {
        return btTransform(btMatrix3x3::getIdentity(), origin);
    }

    btTransform place;
    std::vector<SceneParts> pieces;
};

SceneObject* makeLoosePiece(const SceneParts& parts) {
    auto* piece = new SceneObject(parts);
    const float sideways = drawSigned() * scatterImpulse;
    const float upwards = drawSigned() * scatterImpulse + upwardImpulse;
    const float turning = drawSigned() * scatterTorque;
    btRigidBody& body = *parts.physics->body;
    body.applyCentralImpulse({sideways, upwards, 0.0F});
    body.applyTorqueImpulse({0.0F, 0.0F, turning});
    body.setCollisionFlags(body.getCollisionFlags() | btCollisionObject::CF_NO_CONTACT_RESPONSE);
    piece->contactNoise = false;
    return piece;
}

} // namespace

void SceneObject::shatter() {
    if (graphicsObject == nullptr) {
        return; // has broken already in this step, or cannot break
    }
    Breaker breaker(graphicsObject->getTransformRef());
    if (graphicsObject->type == groupType) {
        graphicsModule().detachObject(graphicsObject);
        sceneManager().markForRemoval(this);
        breaker.breakGroup(static_cast<MultiGraphics*>(graphicsObject));
    } else if (graphicsObject->type == polygonType) {
        graphicsModule().detachObject(graphicsObject);
        sceneManager().markForRemoval(this);
        breaker.breakPolygon(graphicsObject);
    } else {
        unbroken = graphicsObject;
    }
    graphicsObject = nullptr;

    std::vector<SceneObject*> made;
    for (const SceneParts& parts : breaker.getPieces()) {
        made.push_back(makeLoosePiece(parts));
    }
    for (SceneObject* piece : made) {
        sceneManager().addDebris(piece);
    }
}
