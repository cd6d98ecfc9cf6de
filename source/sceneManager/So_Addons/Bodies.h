#pragma once

class SceneObject;
class btRigidBody;
class btTypedConstraint;

/// The rigid body of an object; null without an object or without a body.
btRigidBody* bodyOf(const SceneObject* object);

/// The joint that was attached first to the object's body, or null.
btTypedConstraint* firstJoint(const SceneObject* object);
