#pragma once

#include "InterfaceGraphicsObject.h"

/// A rectangle that shows one cell of the font texture "text2.tga".
class GraphicsLetter : public InterfaceGraphicsObject {
public:
    GraphicsLetter(float left, float bottom, float right, float top, char character, float r,
                   float g, float b, float a);

    /// Chooses the cell: 16 by 16 cells of 16 pixels, the top left one being character 32.
    void setGlyph(char character);
};
