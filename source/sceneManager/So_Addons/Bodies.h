#pragma once

class SceneObject;
class btRigidBody;
class btTypedConstraint;
class btVector3;

/// The rigid body of an object; null without an object or without a body.
btRigidBody* bodyOf(const SceneObject* object);

/// The joint that was attached first to the object's body, or null.
btTypedConstraint* firstJoint(const SceneObject* object);

/// Pushes the object in the coming step with the force that gives a free body of its mass the
/// acceleration, in units a second squared. Nothing for what is null, has no body, or cannot move.
void accelerate(const SceneObject* object, const btVector3& acceleration);
