#pragma once

#include "InputObject.h"

/// 1 while the user has no control over the character's legs; hands and aim stay free.
inline int movementLocked = 0;

/// The root of the input tree: turns all that no window took into the state of the protagonist. Has
/// no graphics and takes no hit test. Owned by `InputModule` as its `game`.
class GameInput : public InputObject {
public:
    GameInput() : InputObject(nullptr) {}

    /// Aims at the world point under the mouse, and uses the hands. The position given is not
    /// used: the camera tells where the mouse points.
    void mouse(float x, float y, int button, int action) override;
    /// Moves the character. Escape opens the in-game menu. Nothing has any effect without a
    /// protagonist.
    void key(int key, int action) override;
};
