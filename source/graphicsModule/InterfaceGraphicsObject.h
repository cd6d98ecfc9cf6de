#pragma once

#include "GraphicsObjecte.h"

#include <string>

/// A rectangle on the logical screen, drawn without camera. Its lower left corner sits on its
/// origin until `centreVertices` is called.
class InterfaceGraphicsObject : public GraphicsObjecte {
public:
    InterfaceGraphicsObject(float left, float bottom, float right, float top,
                            const std::string& textureName);
    InterfaceGraphicsObject(float left, float bottom, float right, float top, int texture);

    void draw() override;
    float getZ() const override;
    void setZ(float z) override;
    void moveTo(float x, float y) override; ///< Absolute.
    void moveBy(float dx, float dy) override;
    bool containsPoint(float x, float y) const override;
    float getLeft() const override;
    float getRight() const override;
    float getBottom() const override;
    float getTop() const override;
    void getTransform(btTransform& out) const override { out = transform; }
    btTransform& getTransformRef() override { return transform; }

private:
    btTransform transform;
};
