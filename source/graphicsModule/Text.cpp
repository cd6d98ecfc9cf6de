#include "Text.h"

#include "GraphicsLetter.h"

namespace {

constexpr float cellSize = 16.0F;    // side of a letter of size 0
constexpr float kern = 7.0F;         // how far a letter reaches over the one before it
constexpr float blankAdvance = 6.0F; // of a blank of size 0

/// How far the pen moves for a character. The first one of a line has nothing to reach over.
float advanceOf(char character, float size, bool first) {
    if (character == ' ') {
        return size + blankAdvance;
    }
    return size + cellSize - (first ? 0.0F : kern);
}

} // namespace

Text::Text(const std::string& shown, float, float, float extraSize, float r, float g, float b)
    : size(extraSize),
      red(r),
      green(g),
      blue(b) {
    setText(shown);
}

void Text::setText(const std::string& value) {
    if (value == text) {
        return;
    }
    text.clear();
    width = 0.0F;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (i >= children.size()) {
            addLetter(value[i]);
        } else {
            // A letter keeps its slot, so that a changing counter does not jump about.
            width += advanceOf(value[i], size, i == 0);
            static_cast<GraphicsLetter*>(children[i])->setGlyph(value[i]);
        }
    }
    while (children.size() > value.size()) {
        removeChild(children.back());
    }
    text = value;
}

void Text::addLetter(char character) {
    const float advance = advanceOf(character, size, text.empty());
    const float side = size + cellSize;
    const float left = getLeft() + width - (side - advance);
    const float bottom = getBottom();
    auto* letter = new GraphicsLetter(left, bottom, left + side, bottom + side, character, red,
                                      green, blue, 1.0F);
    letter->setZ(getZ());
    addChild(letter);
    text += character;
    width += advance;
}
