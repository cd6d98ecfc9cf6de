#pragma once

#include <span>

class SceneObject;
class btCollisionObject;
class btPersistentManifold;

// How keywords look at what touches their object.

/// One contact of an object in this step, seen from that object.
struct Contact {
    const btPersistentManifold& manifold;
    const btCollisionObject& body; ///< The other party's.
    SceneObject* other;            ///< Null if the other body belongs to no scene object.

    /// How many of the contact's points lie within the margin of the other shape plus `slack`.
    int pointsWithin(double slack) const;
    /// Whether the parties overlap at a point.
    bool overlaps() const;
};

/// The manifolds of this step that the object takes part in; none without an object or a body.
std::span<btPersistentManifold* const> manifoldsOf(const SceneObject* object);

Contact contactOf(const SceneObject* object, const btPersistentManifold& manifold);
