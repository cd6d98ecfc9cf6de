#pragma once

#include "platform/Window.h"

#include <optional>
#include <span>

// The life of the process around the frame loop, as named phases. Start-up and shutdown run them in
// the order that stands in Startup.cpp; tests run the inner ones around a world without a display.

struct WindowSize {
    int width;
    int height;
};

/// The window size for a first start: the last mode, and so the largest, that has a colour of 8
/// bits and is above 512 by 512. Nothing if no mode will do.
std::optional<WindowSize> chooseWindowSize(std::span<const platform::VideoMode> modes);

/// Everything up to and with the first scene. Ends the process if there is no window to be had.
/// @throws std::string if there is no `config.txt`
void startUp();
void shutDown();

/// Everything between an open window and the first scene: modules, physics pace, events, sound and
/// the game's controls. The `ModuleManager` stands already.
void createServices();
/// The reverse; the `ModuleManager` goes too. The window's context must still be there.
void deleteServices();

/// Receiver of the window's size in pixels; 0 by 0 when it was minimised.
void windowResized(int width, int height);
