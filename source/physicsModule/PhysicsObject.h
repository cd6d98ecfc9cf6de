#pragma once

#include "ShapeTree.h"

#include <LinearMath/btTransform.h>

#include <memory>
#include <vector>

class TextReader;
class TextWriter;
class btMotionState;
class btPersistentManifold;
class btRigidBody;

/// How the drawn transform of a body is found between two steps; the value of `RENDER_MODE`, 0
/// to 3.
inline int renderMode = 0;

/// The physical side of a scene object: one rigid body in the plane z = 0 that turns about z only,
/// with one of Bullet's 2D shapes, and what the game needs around it. Distances are world units,
/// velocities world units a second. `PhysicsModule` owns it once it was added there. The body's
/// user pointer is the owning `SceneObject`.
class PhysicsObject {
public:
    /// Takes the shape tree. `mass` 0 makes a static body.
    PhysicsObject(ShapeTree shape, float x, float y, float restitution, float friction, float mass);
    virtual ~PhysicsObject();
    PhysicsObject(const PhysicsObject&) = delete;
    PhysicsObject& operator=(const PhysicsObject&) = delete;

    /// Appends the physics record of a map.
    void write(TextWriter& stream) const;

    /// Moves a static body towards a point by at most `step` units. True on the call that finds it
    /// nearer than `step`, and at once for a body that is not static.
    bool moveTowards(float x, float y, float step);

    /// To be called when the body was put somewhere: it is found and drawn there at once, and not
    /// on its way.
    void settle();

    /// Computes `renderTransform` for this frame by `renderMode`.
    void updateRenderTransform();
    const btTransform& getRenderTransform() const { return renderTransform; }

    int kind = 1; ///< Collision category, 0 to 4; see `collisionFilter`.
    std::vector<btPersistentManifold*> contacts; ///< Manifolds of this step; not owned.
    std::unique_ptr<btRigidBody> body;           ///< Never null.
    float waterFactor = 0.7F;                    ///< Share of its size that counts in water.
    bool wantsContacts = false;                  ///< Whether `contacts` is filled at each step.
    btTransform renderTransform;                 ///< What drawing uses.
    btTransform previousTransform;               ///< World transform before the latest step.

private:
    void updateBox();

    ShapeTree shape;
    std::unique_ptr<btMotionState> motionState;
};

// Makers. The objects belong to the caller until they are added to `PhysicsModule`; x and y place
// the body's origin.
PhysicsObject* createSphere(float x, float y, float radius, float restitution, float friction,
                            float mass);
PhysicsObject* createBox(float x, float y, float halfWidth, float halfHeight, float restitution,
                         float friction, float mass);
/// `points` alternates x and y and describes a convex outline.
PhysicsObject* createConvex(const std::vector<float>& points, float x, float y, float restitution,
                            float friction, float mass);
/// Takes ownership of the shape, children included.
PhysicsObject* createWithShape(btCollisionShape* shape, float x, float y, float restitution,
                               float friction, float mass);

/// Reads the physics record of a map; null for shape code 0.
/// @throws std::string "file corrupted"
PhysicsObject* readPhysicsObject(TextReader& stream);
