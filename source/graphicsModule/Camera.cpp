#include "Camera.h"

#include "GraphicsModule.h"
#include "ProcessValues.h"
#include "platform/Window.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastZoom = 1e-6;

// The picture without bars, in window pixels. A minimised window has none and counts as one pixel.
double pictureWidth() {
    return std::max(windowWidth - 2 * letterboxX, 1);
}
double pictureHeight() {
    return std::max(windowHeight - 2 * letterboxY, 1);
}

} // namespace

double Camera::divisorZoom() const {
    const double zoom = getZoom();
    return std::abs(zoom) < leastZoom ? std::copysign(leastZoom, zoom) : zoom;
}

void Camera::getMouseWorld(double& x, double& y) const {
    int mx = 0;
    int my = 0;
    platform::window().getMousePosition(mx, my);
    screenToWorld(mx, my, x, y);
}

void Camera::getViewRect(double& left, double& bottom, double& right, double& top) const {
    screenToWorld(letterboxX, windowHeight - letterboxY, left, bottom);
    screenToWorld(windowWidth - letterboxX, letterboxY, right, top);
}

void Camera::lightMapToWorld(int px, int py, double& x, double& y, int mapSize) const {
    const double zoom = divisorZoom();
    x = px * double{logicalWidth} / mapSize / zoom + getX() - 640.0 / zoom;
    y = (double{logicalHeight} - py * double{logicalHeight} / mapSize) / zoom + getY() -
        400.0 / zoom;
}

void Camera::screenToWorld(double mx, double my, double& x, double& y) const {
    const double zoom = divisorZoom();
    const double logicalX = (mx - letterboxX) * double{logicalWidth} / pictureWidth();
    const double logicalY =
        double{logicalHeight} - (my - letterboxY) * double{logicalHeight} / pictureHeight();
    x = logicalX / zoom + getX() - 640.0 / zoom;
    y = logicalY / zoom + getY() - 400.0 / zoom;
}

void Camera::setView(float, float, float) {}
void Camera::setX(float) {}
void Camera::setY(float) {}
void Camera::setZoom(float) {}
