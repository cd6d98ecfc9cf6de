#pragma once

#include "InputModule.h"
#include "InputObject.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/MultiGraphics.h"

#include <algorithm>

/// A slider that sets a number while it is dragged, and whose handle follows the number when other
/// code changes it. Bound to the brightness unless told otherwise.
template <class T>
class SliderSetButton : public InputObject {
public:
    /// `look` is a track and a handle, see `makeSliderGraphics`. `target` must outlive the slider.
    SliderSetButton(MultiGraphics* look, T lowest, T highest, T* target = &brightness)
        : InputObject(look),
          value(target),
          minimum(lowest),
          maximum(highest),
          range(highest - lowest) {
        SliderSetButton::tick();
    }

    /// Puts the middle of the handle over the value.
    void tick() override {
        const GraphicsObject* track = parts().front();
        GraphicsObject* handle = parts().back();
        const auto share = static_cast<float>((*value - minimum) / range);
        const float handleWidth = handle->getRight() - handle->getLeft();
        const float offset = share * track->getWidth() - handleWidth * 0.5F;
        handle->moveTo(track->getLeft() + offset, graphics->getBottom());
    }

    /// A press sets the value and starts a drag, which lasts until any release.
    void mouse(float x, float /*y*/, int /*button*/, int action) override {
        takeFocus();
        InputModule& input = inputModule();
        const bool drags = action == mouseAction::moved && input.dragging == 1;
        if (action != platform::pressed && !drags) {
            return;
        }
        const GraphicsObject* track = parts().front();
        const float share = (x - track->getLeft()) / track->getWidth();
        *value = std::clamp(static_cast<T>(range * share + minimum), minimum, maximum);
        input.dragging = 1;
        input.grabbed = this;
    }

private:
    const std::vector<GraphicsObject*>& parts() const {
        return static_cast<const MultiGraphics*>(graphics)->getChildren();
    }

    T* value; // not owned
    T minimum;
    T maximum;
    T range;
};
