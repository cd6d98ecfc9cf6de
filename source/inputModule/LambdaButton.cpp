#include "LambdaButton.h"

#include "graphicsModule/GraphicsObject.h"
#include "platform/Window.h"
#include "soundModule/SoundManager.h"

#include <utility>

LambdaButton::LambdaButton(GraphicsObject* face, std::function<void()> action)
    : InputObject(face),
      callback(std::move(action)) {}

void LambdaButton::mouse(float /*x*/, float /*y*/, int /*button*/, int action) {
    takeFocus();
    float r = 0.0F;
    float g = 0.0F;
    float b = 0.0F;
    float a = 0.0F;
    graphics->getColour(r, g, b, a);
    const bool isWhite = r == 1.0F && g == 1.0F && b == 1.0F;
    if (action == mouseAction::moved && isWhite) {
        graphics->setColour(0.5F, 0.0F, 0.2F, 1.0F);
    }
    if (action == platform::released) {
        soundManager().playFlat("click.wav", 128);
        // A copy: the callback may delete this button, and its own captures with it.
        const std::function<void()> fire = callback;
        fire();
    }
}

void LambdaButton::lostFocus() {
    float r = 0.0F;
    float g = 0.0F;
    float b = 0.0F;
    float a = 0.0F;
    graphics->getColour(r, g, b, a);
    if (r != 0.0F) {
        graphics->setColour(1.0F, 1.0F, 1.0F, 1.0F);
    }
}
