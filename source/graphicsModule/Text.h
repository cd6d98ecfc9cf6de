#pragma once

#include "MultiGraphics.h"

#include <string>

/// A line of text in the game's fixed-pitch font, one `GraphicsLetter` a character. Never stored.
class Text : public MultiGraphics {
public:
    /// A new text stands at 0, 0 whatever x and y say, and is placed with `moveBy`. A letter is
    /// 16 + `size` units high.
    Text(const std::string& text, float x, float y, float size, float r, float g, float b);

    /// Lays the text out anew, reusing letters; does nothing if it is shown already.
    void setText(const std::string& value);
    const std::string& getText() const { return text; }
    float getTextWidth() const { return width; } ///< Length laid out so far, logical units.

private:
    void addLetter(char character);

    float size;
    float red, green, blue;
    std::string text;
    float width = 0.0F;
};
