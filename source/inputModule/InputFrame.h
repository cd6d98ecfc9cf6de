#pragma once

#include "InputObject.h"

#include <string>
#include <vector>

/// A window that holds widgets and further frames, which it owns.
class InputFrame : public InputObject {
public:
    explicit InputFrame(GraphicsObject* panel);
    ~InputFrame() override;

    /// Takes the child over and moves it by x, y from where it was made. Before the frame is
    /// placed. A second add says "jest juz taki obiekt InputObject".
    void addChild(float x, float y, InputObject* child);
    /// The same for a frame; a second add says "jest juz taki obiekt InputFrame".
    void addSubFrame(float x, float y, InputFrame* frame);

    void moveBy(float dx, float dy) override;
    void setZ(float z) override;
    void tick() override;
    void mouse(float x, float y, int button, int action) override;

    float getZ() const { return z; }
    const std::vector<InputObject*>& getChildren() const { return children; }

private:
    std::vector<InputObject*> children; // owned
    float z = 0.0F;
};

/// A dim, half-transparent panel.
InputFrame* makeFrame(float left, float bottom, float right, float top);

/// Lays objects out in rows of at most `maxWidth`, the first row on top. Needs at least one.
InputFrame* layoutRows(const std::vector<InputObject*>& objects, float maxWidth, float margin);

/// A frame of words that wraps. The text must hold at least one word.
InputFrame* makeTextFrame(const std::string& text, float maxWidth, float margin, float size,
                          float r, float g, float b);
