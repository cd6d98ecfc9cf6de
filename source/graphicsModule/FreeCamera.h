#pragma once

#include "Camera.h"

/// Stands where it is put: for menus and scripted shots.
class FreeCamera : public Camera {
public:
    FreeCamera(float startX, float startY, float startZoom)
        : x(startX),
          y(startY),
          zoom(startZoom) {}

    void setView(float newX, float newY, float newZoom) override;
    void setX(float value) override { x = value; }
    void setY(float value) override { y = value; }
    void setZoom(float value) override { zoom = value; }
    float getX() const override { return x; }
    float getY() const override { return y; }
    float getZoom() const override { return zoom; }
    void applyTransform(float parallax) const override;

private:
    float x;
    float y;
    float zoom;
};
