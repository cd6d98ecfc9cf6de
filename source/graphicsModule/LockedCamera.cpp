#include "LockedCamera.h"

#include "GraphicsModule.h"
#include "Painter.h"
#include "ProcessValues.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "platform/Window.h"
#include "sceneManager/SceneObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>

namespace {

constexpr float easing = 0.1F;     // share of the way that is gone each frame
constexpr float mouseShare = 0.5F; // the view rests this far from the object towards the mouse

/// Mouse from the screen's centre, in world units unturned. The bars are left in.
btVector3 mouseOffset(float zoom) {
    int mx = 0;
    int my = 0;
    platform::window().getMousePosition(mx, my);
    const auto width = static_cast<float>(std::max(windowWidth, 1));
    const auto height = static_cast<float>(std::max(windowHeight, 1));
    const float x = static_cast<float>(mx) * logicalWidth / width;
    const float y = logicalHeight - static_cast<float>(my) * logicalHeight / height;
    return {x / zoom - 640.0F / zoom, y / zoom - 400.0F / zoom, 0.0F};
}

} // namespace

LockedCamera::LockedCamera(SceneObject* object)
    : target(object),
      position(object->physicsObject->body->getWorldTransform().getOrigin()) {
    owner = object;
    position.setZ(0.0F);
    position.setW(0.0F);
}

void LockedCamera::setTarget(SceneObject* object, float newZoom) {
    owner = object;
    target = object;
    targetZoom = newZoom;
}

void LockedCamera::applyTransform(float parallax) const {
    painter().translate(logicalWidth / 2.0F, logicalHeight / 2.0F, 0.0F);
    painter().multiply(btTransform(physicsModule().worldFrame).inverse());
    painter().scale(zoom);
    painter().translate(-position.x() * parallax, -position.y() * parallax, 0.0F);
}

void LockedCamera::update() {
    const btVector3 place = target->physicsObject->getRenderTransform().getOrigin();
    const btVector3 lean =
        physicsModule().worldFrame * mouseOffset(static_cast<float>(divisorZoom())) * mouseShare;
    position += (place + lean - position) * easing;
    position.setW(0.0F);
    zoom = zoom * (1.0F - easing) + targetZoom * easing;
}
