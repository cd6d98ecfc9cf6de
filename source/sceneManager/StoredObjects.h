#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

class SceneObject;
class btRigidBody;
class btTypedConstraint;

/// The objects of the scene that a save holds, with their places in it. Made once a save, so that a
/// joint finds its bodies without a walk. An object that has broken in this very step holds nothing
/// that could be stored any more, and is left out with its joints.
class StoredObjects {
public:
    explicit StoredObjects(const std::vector<SceneObject*>& objects);

    const std::vector<const SceneObject*>& getObjects() const { return stored; }
    /// The place of the body's object; -1 with the line "getNumberOfSceneObject: niema takiego
    /// obiektu SceneObject" for a body of no listed object.
    int indexOf(const btRigidBody& body) const;
    /// Whether both ends of the joint stay.
    bool holds(const btTypedConstraint& joint) const;

private:
    bool isLeaving(const btRigidBody& body) const;

    std::vector<const SceneObject*> stored;
    std::unordered_map<const void*, int> places; // by user pointer of the body
};
