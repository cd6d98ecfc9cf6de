#pragma once

class Equipment;
class SceneObject;

/// What `EqItem::getType` says.
namespace itemType {
constexpr int weapon = 0;
constexpr int hands = 2;
constexpr int evilHands = 3;
} // namespace itemType

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
    /// Every step while a button is held: world position of the character, angle of the aim from
    /// straight up (negative towards the right, radians), and two values for the item's own use.
    /// Returns what it put into the scene, if anything.
    virtual SceneObject* use(float x, float y, float angle, float a, float b);
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
