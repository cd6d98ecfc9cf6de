#pragma once

#include "GraphicsObject.h"

#include <vector>

/// A group that acts for its children, which it owns. Stream type 3.
class MultiGraphics : public GraphicsObject {
public:
    MultiGraphics() : GraphicsObject(3) {}
    /// Reads what follows the type.
    explicit MultiGraphics(TextReader& stream);
    ~MultiGraphics() override;

    /// Takes the child over. A second add says "jest juz taki obiekt GraphicsObject w
    /// MultiGraphics".
    void addChild(GraphicsObject* child);
    /// Deletes the child. An unknown one gets "niema takiego obiektu GraphicsObject w
    /// MultiGraphics".
    void removeChild(GraphicsObject* child);
    const std::vector<GraphicsObject*>& getChildren() const { return children; }
    /// Empties the group without deleting; the caller owns the children from then on.
    std::vector<GraphicsObject*> releaseChildren();

    void draw() override;
    void drawShadow(LightAdd& light) override;
    void setCastsShadow(int casts) override;
    float getZ() const override;
    void setZ(float z) override;
    void moveTo(float x, float y) override;
    void moveBy(float dx, float dy) override;
    bool containsPoint(float x, float y) const override;
    float getLeft() const override;
    float getRight() const override;
    float getBottom() const override;
    float getTop() const override;
    float getParallax() const override;
    void getTransform(btTransform& out) const override;
    btTransform& getTransformRef() override;
    void setPhysicsObject(PhysicsObject* object) override;
    void write(TextWriter& stream) const override;
    void updateBounds() override;
    void updateLocalBounds() override;
    void refreshTransform() override;
    void setOutlined(bool outlined) override;
    void setColour(float r, float g, float b, float a) override;
    void getColour(float& r, float& g, float& b, float& a) const override;

protected:
    float x = 0.0F; ///< The group's own position, used while it has no children.
    float y = 0.0F;
    float z = 0.0F;
    std::vector<GraphicsObject*> children; // owned
};
