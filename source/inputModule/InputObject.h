#pragma once

class GraphicsObject;

/// Actions of mouse events beside release (0) and press (1).
namespace mouseAction {
constexpr int moved = 3;
constexpr int wheelDown = 8;
constexpr int wheelUp = 9;
} // namespace mouseAction

/// Base of everything that takes mouse or keys. Positions are in the logical screen of 1280 by 800.
/// Its graphics live in the interface objects of `GraphicsModule` as long as it does.
class InputObject {
public:
    /// Hands the graphics, which may be null, to `GraphicsModule`.
    explicit InputObject(GraphicsObject* shown);
    virtual ~InputObject();
    InputObject(const InputObject&) = delete;
    InputObject& operator=(const InputObject&) = delete;

    virtual void moveBy(float dx, float dy);
    virtual void setZ(float z);
    virtual void tick() {}
    virtual bool contains(float x, float y) const;
    virtual void mouse(float x, float y, int button, int action);
    virtual void key(int key, int action);
    virtual void lostFocus() {}

    GraphicsObject* graphics; ///< May be null; owned by `GraphicsModule`.

protected:
    /// Tells the holder of the focus that it has lost it, and takes it.
    void takeFocus();
};
