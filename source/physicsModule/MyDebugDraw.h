#pragma once

#include <LinearMath/btIDebugDraw.h>

/// Shows what the Bullet world consists of, over the picture, in world space. Owned by
/// `PhysicsModule`; draws only when the world is asked to, which `DEBUG_DRAW` decides.
class MyDebugDraw : public btIDebugDraw {
public:
    using btIDebugDraw::drawSphere;
    using btIDebugDraw::drawTriangle;

    void drawLine(const btVector3& from, const btVector3& to, const btVector3& fromColour,
                  const btVector3& toColour) override;
    void drawLine(const btVector3& from, const btVector3& to, const btVector3& colour) override;
    /// In the painter's present transform, without the camera.
    void drawSphere(const btVector3& position, btScalar radius, const btVector3& colour) override;
    void drawTriangle(const btVector3& a, const btVector3& b, const btVector3& c,
                      const btVector3& colour, btScalar alpha) override;
    void drawContactPoint(const btVector3& point, const btVector3& normal, btScalar distance,
                          int lifeTime, const btVector3& colour) override;
    void reportErrorWarning(const char* text) override;
    /// There is no text in this layer.
    void draw3dText(const btVector3& /*location*/, const char* /*text*/) override {}
    void setDebugMode(int mode) override { debugMode = mode; }
    int getDebugMode() const override { return debugMode; }

private:
    int debugMode = 0; // bits of btIDebugDraw::DebugDrawModes
};
