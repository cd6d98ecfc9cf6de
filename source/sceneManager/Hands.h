#pragma once

#include "EqWeapon.h"

#include <LinearMath/btVector3.h>

#include <optional>

class Player;
class btHingeConstraint;
class btRigidBody;
class btTransform;

/// The protagonist's hands. They grab what the body touches, by a hinge about the character's
/// centre, swing it after the aim, let go of it or hurl it. From what passes through loose things,
/// such as a liana, the character hangs instead.
///
/// What is held may vanish at any time, and its joint with it. Each use asks the list of joints
/// first, and follows neither pointer before that.
class Hands : public EqWeapon {
public:
    Hands();

    int getType() const override { return itemType::hands; }
    /// Swings what is held to where the aim wants it.
    void update() override;
    void primaryDown() override;
    void primaryUp() override;
    /// Grabs while reaching, throws on the second button; the arguments are not used.
    SceneObject* use(float x, float y, float angle, float a, float b) override;
    SceneObject* makeProjectile(float x, float y, float a, float vx, float vy) override;
    bool hangsOnLooseObject() const override;
    /// From something that one hangs on; false from anything else.
    bool leapOff() override;
    bool holdAngle(float& angle) const override;
    bool isReaching() const override;

    /// Takes the first thing within reach that may be taken. After a silent drop in the same step a
    /// silent grab takes up the same thing again: joined bodies have no contacts that would tell of
    /// it. True if something was taken.
    bool grab(bool silent);
    /// Lets go. Unless it is silent it is heard, and the next grab has to wait. False if nothing
    /// was held.
    bool drop(bool silent);

    /// What is held, null if nothing is or if it has vanished. Not owned.
    SceneObject* heldObject() const { return isHolding() ? held : nullptr; }

private:
    /// A thing by the place where it is touched, in its own coordinates.
    struct Grip {
        SceneObject* object; // not owned
        btVector3 point;
    };

    Player& owner() const;
    const btTransform& place() const;
    btRigidBody& heldBody() const;
    bool isHolding() const;

    std::optional<Grip> findGrip() const;
    void take(const Grip& grip, bool silent);
    void hurl();
    void playHere(const char* sound) const;

    btHingeConstraint* joint = nullptr; // owned by `PhysicsModule`; set if and only if `held` is
    btVector3 grabPoint{0, 0, 0};       // on the held body, in its own coordinates
    float holdBase = 0.0F;              // joint angle, radians, of the steering angle 0
    float holdAngle0 = 0.0F;            // bearing of the held body when it was taken, radians
    SceneObject* held = nullptr;        // not owned
    bool reaching = false;              // the first button wants to grab

    std::optional<Grip> laidDown; // what the last silent drop let go of
    std::uint32_t laidDownStep = 0;
};
