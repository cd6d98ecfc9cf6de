#pragma once

class Equipment;

/// Anything that a character can carry. Owned by the `Equipment` that it was added to.
class EqItem {
public:
    virtual ~EqItem() = default;

    /// Makes this the current item; the one before takes its place in the list.
    virtual void select();
    virtual int getType() const = 0;
    /// Once a step while current.
    virtual void update() {}
    virtual void primaryDown() {}
    virtual void secondaryDown() {}
    virtual void primaryUp() {}
    virtual void secondaryUp() {}
    /// Every step while a button is held: world position, angle from straight up (negative towards
    /// the right, radians), and a velocity.
    virtual void use(float x, float y, float angle, float vx, float vy);
    /// Whether the item ties the character to a loose object that it passes through.
    virtual bool hangsOnLooseObject() const { return false; }
    /// Leaps off what is held; false if nothing is.
    virtual bool leapOff() { return false; }
    /// Where the arm points that holds something, in radians from straight up, counter-clockwise.
    /// False, and the angle as it was, if nothing is held.
    virtual bool holdAngle(float& /*angle*/) const { return false; }
    /// Whether the item wants to take hold and has found nothing yet: the arm points at the aim.
    virtual bool isReaching() const { return false; }

    Equipment* equipment = nullptr; ///< Null until added; not owned.
};
