#pragma once

#include "InputObject.h"

#include <functional>

/// Anything drawable as a button. A white one turns dark red under the mouse; one whose red is 0
/// never changes its colour.
class LambdaButton : public InputObject {
public:
    /// The action must not be empty. It may close frames, this button's own included.
    LambdaButton(GraphicsObject* face, std::function<void()> action);

    /// Fires on the release of any button of the mouse.
    void mouse(float x, float y, int button, int action) override;
    void lostFocus() override;

private:
    std::function<void()> callback;
};
