#pragma once

#include <limits>
#include <span>

class SceneObject;
class btCollisionObject;
class btPersistentManifold;

// How additions look at what touches their object.

/// One contact of an object in this step, seen from that object.
struct Contact {
    const btPersistentManifold& manifold;
    const btCollisionObject& body; ///< The other party's.
    SceneObject* other;            ///< Null if the other body belongs to no scene object.

    static constexpr float anyImpulse = std::numeric_limits<float>::lowest();

    /// How many of the contact's points lie within the margin of the other shape plus `slack`, and
    /// were pushed apart by at least the impulse.
    int pointsWithin(double slack, float leastImpulse = anyImpulse) const;
    /// Hurts the other party once for each such point.
    void hurtOther(int damage, float leastImpulse = anyImpulse) const;
    /// Whether the parties are at a point no further apart than that, world units.
    bool comesWithin(float distance) const;
    /// Whether the parties overlap at a point.
    bool overlaps() const;
};

/// The manifolds of this step that the object takes part in; none without an object or a body.
std::span<btPersistentManifold* const> manifoldsOf(const SceneObject* object);

Contact contactOf(const SceneObject* object, const btPersistentManifold& manifold);
