#include "FreeCamera.h"

#include "GraphicsModule.h"
#include "Painter.h"

void FreeCamera::setView(float newX, float newY, float newZoom) {
    x = newX;
    y = newY;
    zoom = newZoom;
}

void FreeCamera::applyTransform(float parallax) const {
    painter().translate(logicalWidth / 2.0F, logicalHeight / 2.0F, 0.0F);
    painter().scale(zoom);
    painter().translate(-x * parallax, -y * parallax, 0.0F);
}
