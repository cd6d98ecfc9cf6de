#pragma once

#include "Camera.h"

#include <LinearMath/btVector3.h>

/// Follows a scene object and leans half way towards the mouse, easing once a drawn frame.
class LockedCamera : public Camera {
public:
    /// Starts on the object, without easing. The object must have a body.
    explicit LockedCamera(SceneObject* object);

    void setTarget(SceneObject* object, float zoom);

    void setX(float x) override { position.setX(x); }
    void setY(float y) override { position.setY(y); }
    void setZoom(float value) override { targetZoom = value; }
    float getX() const override { return position.x(); }
    float getY() const override { return position.y(); }
    float getZoom() const override { return zoom; }
    float getTargetZoom() const override { return targetZoom; }
    void applyTransform(float parallax) const override;
    void update() override;

private:
    SceneObject* target; // not owned
    float targetZoom = 1.0F;
    float zoom = 1.0F;
    btVector3 position;
};
