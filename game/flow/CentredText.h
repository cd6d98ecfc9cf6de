#pragma once

#include <string>

class InputFrame;

/// Opens white words on no panel in the middle of the screen; a size of 0 is that of the smallest
/// letters. `InputModule` owns the frame.
InputFrame* openCentredText(const std::string& words, float size);
