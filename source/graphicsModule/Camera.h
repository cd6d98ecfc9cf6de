#pragma once

class SceneObject;

/// Which part of the world fills the logical screen of 1280 by 800, and the ways between window
/// pixels, light-map pixels and world points. The view puts the camera point on the screen's centre
/// and scales by the zoom.
class Camera {
public:
    virtual ~Camera() = default;

    virtual void getMouseWorld(double& x, double& y) const;
    virtual void getViewRect(double& left, double& bottom, double& right, double& top) const;
    /// Pixels of a square map, counted from its upper left corner, to world.
    virtual void lightMapToWorld(int px, int py, double& x, double& y, int mapSize) const;
    /// Window pixels, counted from the upper left corner, to world.
    virtual void screenToWorld(double mx, double my, double& x, double& y) const;
    virtual void setView(float x, float y, float zoom);
    virtual void setX(float x);
    virtual void setY(float y);
    virtual void setZoom(float zoom);
    virtual float getX() const { return -1.0F; }
    virtual float getY() const { return -1.0F; }
    virtual float getZoom() const { return -1.0F; }
    virtual float getTargetZoom() const { return getZoom(); }
    /// Applies the view for a layer of this parallax to the painter's transform.
    virtual void applyTransform(float parallax) const = 0;
    /// Once a drawn frame, before anything reads the camera.
    virtual void update() {}

    /// The zoom as something to divide by: a zoom of 0 counts as one that shows nearly everything.
    double divisorZoom() const;

    SceneObject* owner = nullptr; ///< Followed object, null in a free camera; not owned.
};
