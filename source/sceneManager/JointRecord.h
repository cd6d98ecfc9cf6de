#pragma once

#include <vector>

class SceneObject;
class StoredObjects;
class TextReader;
class TextWriter;
class btTypedConstraint;

// The joint records of a map: hinges, and springs that slide and turn in the plane. Bodies are told
// by the place of their object in the same map.

/// Reads a joint between bodies of these objects; null for a type without a record. The result
/// belongs to the caller and is in no world.
/// @throws std::string "file corrupted", "file corrupted: joint body index" for an object that is
/// not there, has no body, or is joined to itself
btTypedConstraint* readJoint(TextReader& stream, const std::vector<SceneObject*>& objects);

/// Appends the joint's record.
void writeJoint(TextWriter& stream, btTypedConstraint& joint, const StoredObjects& objects);
