#include "MyDebugDraw.h"

// A fixed call upward: collision shapes are drawn over the picture, by the picture's own means.
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Painter.h"

#include <array>
#include <cmath>
#include <iostream>
#include <numbers>

namespace {

constexpr int sphereBands = 5;

PaintVertex makeVertex(const btVector3& place, const btVector3& colour) {
    return {place.x(), place.y(), place.z(), 0, 0, colour.x(), colour.y(), colour.z(), 1};
}

/// One strip between two latitudes of a ball around the origin, seen along z.
void drawBand(int band, float radius, const btVector3& colour) {
    constexpr float pi = std::numbers::pi_v<float>;
    constexpr std::size_t cornerCount = 2 * (std::size_t{sphereBands} + 1);
    std::array<float, cornerCount * 2> positions{};
    std::array<float, cornerCount * 2> texcoords{};
    std::array<float, cornerCount * 4> colours{};
    for (std::size_t i = 0; i < cornerCount; ++i) {
        const float ring = static_cast<float>(band) - (i % 2 == 0 ? 1.0F : 0.0F);
        const float width = std::cos(pi * (-0.5F + ring / sphereBands)) * radius;
        const std::size_t column = i / 2; // two corners each
        const float longitude = 2.0F * pi * (static_cast<float>(column) - 1.0F) / sphereBands;
        positions[i * 2] = std::cos(longitude) * width;
        positions[i * 2 + 1] = std::sin(longitude) * width;
        for (std::size_t channel = 0; channel < 4; ++channel) {
            colours[i * 4 + channel] = channel < 3 ? colour[static_cast<int>(channel)] : 1.0F;
        }
    }
    painter().quadStrip({positions.data(), texcoords.data(), colours.data(), cornerCount});
}

} // namespace

void MyDebugDraw::drawLine(const btVector3& from, const btVector3& to, const btVector3& fromColour,
                           const btVector3& toColour) {
    const std::array ends{makeVertex(from, fromColour), makeVertex(to, toColour)};
    painter().pushTransform();
    graphicsModule().camera->applyTransform(1.0F);
    painter().lines(ends);
    painter().popTransform();
}

void MyDebugDraw::drawLine(const btVector3& from, const btVector3& to, const btVector3& colour) {
    drawLine(from, to, colour, colour);
}

void MyDebugDraw::drawSphere(const btVector3& position, btScalar radius, const btVector3& colour) {
    painter().pushTransform();
    painter().translate(position.x(), position.y(), position.z());
    for (int band = 0; band <= sphereBands; ++band) {
        drawBand(band, radius, colour);
    }
    painter().popTransform();
}

void MyDebugDraw::drawTriangle(const btVector3& a, const btVector3& b, const btVector3& c,
                               const btVector3& colour, btScalar /*alpha*/) {
    drawLine(a, b, colour);
    drawLine(b, c, colour);
    drawLine(c, a, colour);
}

void MyDebugDraw::drawContactPoint(const btVector3& point, const btVector3& normal,
                                   btScalar distance, int /*lifeTime*/, const btVector3& colour) {
    drawLine(point, point + normal * distance, btVector3(1, 1, 1) - colour);
}

void MyDebugDraw::reportErrorWarning(const char* text) {
    std::cout << text;
}
