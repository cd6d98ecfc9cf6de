#pragma once

class btRigidBody;

/// How water lifts a body.
enum class Lift {
    whole,   ///< The full force at its centre, however deep it lies.
    precise, ///< By the share of its height under the surface, turning it to where it lies
             ///< flattest.
};

/// Pushes the body up in the coming step: with a `waterFactor` of 1, a body that is covered hovers.
/// `surface` is the water's level in the world. Nothing for what cannot move.
void applyLift(btRigidBody& body, float waterFactor, float surface, Lift lift);
