#pragma once

#include <string>

class PhysicsObject;
class Player;
class SceneObject;
class btVector3;

// What bodies of commands ask of the objects that a map has named, and do to them.

/// The body of the named object; null if either is missing.
PhysicsObject* physicsOf(const std::string& object);
/// The place of the named object. False, and no change, if it is missing or has no body.
bool placeOf(const std::string& object, btVector3& place);
/// The same for an object that has a body.
const btVector3& placeOf(const SceneObject& object);
/// Whether a gate that falls there would meet the protagonist, which no gate does.
bool isOverProtagonist(const btVector3& place);
/// Puts the body of an object there, both as it stands in the world and as it is drawn.
void putAt(SceneObject& object, const btVector3& place);

/// The object of that name that the given one touches in this step, within the margin of the
/// other's shape; null if there is none.
SceneObject* touchWithin(const SceneObject* object, const std::string& name);

/// Whether the object touches the protagonist, within that margin and so many world units more.
bool touchesProtagonist(const SceneObject* object, double slack = 0.0);

/// Takes away the first joint of the named object. False if there was none.
bool releaseJoint(const std::string& object);

/// An electric crack, one of four.
void zap(const btVector3& place);

/// A single burst of so many particles at up to that speed from the first emitter of the object.
/// The emitter's own speed stays.
void burst(SceneObject* object, float speed, float particles);

/// The character lets go of what it holds, and is heard to.
void emptyHands(const Player& character);
