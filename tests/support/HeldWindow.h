#pragma once

#include "platform/GlfwWindow.h"

/// Keeps each frame in the back buffer, whose contents a swap would leave to chance.
class HeldWindow : public platform::GlfwWindow {
public:
    void swapBuffers() override {}
};
