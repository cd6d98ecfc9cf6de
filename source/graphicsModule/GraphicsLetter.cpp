#include "GraphicsLetter.h"

GraphicsLetter::GraphicsLetter(float left, float bottom, float right, float top, char character,
                               float r, float g, float b, float a)
    : InterfaceGraphicsObject(left, bottom, right, top, "text2.tga") {
    setGlyph(character);
    setColour(r, g, b, a);
}

void GraphicsLetter::setGlyph(char character) {
    constexpr float pictureSize = 256.0F;
    constexpr float cellSize = 16.0F;
    constexpr int cellsInRow = 16;
    constexpr float inset = 0.0059F; // one and a half pixels, against the neighbours' bleeding

    // Characters above 127 come out negative and are wrapped by the repeating texture.
    const int cell = static_cast<signed char>(character) - ' ';
    const int column = cell % cellsInRow;
    const int row = cell / cellsInRow;
    const float x = static_cast<float>(column) * cellSize;
    const float y = pictureSize - static_cast<float>(row) * cellSize;
    const float u0 = x / pictureSize + inset;
    const float u1 = (x + cellSize) / pictureSize - inset;
    const float v0 = (y - cellSize) / pictureSize + inset;
    const float v1 = y / pictureSize - inset;
    data.texcoords = {u0, v0, u0, v1, u1, v1, u1, v0};
}
