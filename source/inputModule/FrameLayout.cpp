// How frames are made: panels, rows of objects, and texts that wrap.

#include "InputFrame.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/Text.h"

#include <algorithm>
#include <sstream>

namespace {

struct Place {
    float x;
    float y;
};

/// Places in rows that grow upwards from 0, 0; the caller turns them over.
struct RowLayout {
    std::vector<Place> places;
    float widest = 0.0F;
    float lastRow = 0.0F; ///< y of the last row.
};

RowLayout placeInRows(const std::vector<InputObject*>& objects, float maxWidth) {
    RowLayout layout;
    float x = 0.0F;
    for (const InputObject* object : objects) {
        const float width = object->graphics->getWidth();
        if (!layout.places.empty() && width + x > maxWidth) {
            x = 0.0F;
            layout.lastRow += object->graphics->getHeight();
        }
        layout.places.push_back({x, layout.lastRow});
        x += width;
        layout.widest = std::max(layout.widest, x);
    }
    return layout;
}

} // namespace

InputFrame* makeFrame(float left, float bottom, float right, float top) {
    constexpr int noTexture = -1;
    auto* panel = new InterfaceGraphicsObject(left, bottom, right, top, noTexture);
    panel->setColour(0.2F, 0.2F, 0.2F, 0.5F);
    return new InputFrame(panel);
}

InputFrame* layoutRows(const std::vector<InputObject*>& objects, float maxWidth, float margin) {
    const RowLayout layout = placeInRows(objects, maxWidth);
    const float firstHeight = objects.empty() ? 0.0F : objects.front()->graphics->getHeight();
    InputFrame* frame = makeFrame(0.0F, -margin, layout.widest, firstHeight + layout.lastRow);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const Place& place = layout.places[i];
        frame->addChild(place.x, layout.lastRow - place.y, objects[i]);
    }
    return frame;
}

InputFrame* makeTextFrame(const std::string& text, float maxWidth, float margin, float size,
                          float r, float g, float b) {
    std::vector<InputObject*> words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, ' ');) {
        words.push_back(new InputObject(new Text(word + " ", 0.0F, 0.0F, size, r, g, b)));
    }
    return layoutRows(words, maxWidth, margin);
}
