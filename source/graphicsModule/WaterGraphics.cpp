#include "WaterGraphics.h"

#include "Random.h"
#include "TextureStore.h"
#include "physicsModule/PhysicsModule.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace {

constexpr int waterType = 5;
constexpr std::size_t fewestColumns = 3;
constexpr float waveRoom = 150.0F;     // world units above the rest level
constexpr float damping = 0.991F;      // of a column's speed that a step leaves
constexpr float busySurface = 10.0F;   // disturbance above which nothing splashes
constexpr int ripplePeriod = 30;       // steps
constexpr float rippleForce = 19.0F;   // at most, either way: too soft for droplets
constexpr float leastDroplets = 20.0F; // force from which a hit throws droplets; one at each edge
constexpr float rim = 1.25F; // share of the force next to what was hit, halved and thirded
/// Droplets that a hit throws along its width, and at each edge: what is wider than all waters of a
/// level, or faster than all that falls, makes no more of them.
constexpr int mostDroplets = 1000;

ParticleParams dropletsOf(const GraphicsObjectData& water) {
    const float* colour = water.colours.data();
    ParticleParams params;
    params.size = 10.0F;
    params.z = water.z;
    params.texture = textureStore().find("particle.tga");
    params.life = 100.0F;
    params.colour = {colour[0], colour[1], colour[2], colour[3]};
    params.fade = 100.0F;
    params.endSize = 50.0F;
    params.endColour = {colour[0], colour[1], colour[2], 0.0F};
    params.speed = 100.0F;
    params.gravityY = -9.8F;
    params.spin = 4.0F;
    params.spread = 1.5707964F;
    params.rate = 1.0F;
    return params;
}

/// A column is pulled to the mean of its neighbours and the rest level.
void pull(float& height, float& speed, float mean, float dt) {
    speed += mean - height;
    speed *= damping;
    height += speed * dt;
}

} // namespace

WaterGraphics::WaterGraphics(float left, float bottom, float right, float top, int texture,
                             float depth, float parallax, int texcoordMode, float r, float g,
                             float b, float a)
    : StaticWaterGraphics(left, bottom, right, top, texture, depth, parallax, texcoordMode, r, g, b,
                          a),
      splashEmiter(dropletsOf(data), ParticleEmiter::DrawnBy::holder) {
    startWaves();
}

WaterGraphics::WaterGraphics(TextReader& stream)
    : StaticWaterGraphics(stream),
      splashEmiter(dropletsOf(data), ParticleEmiter::DrawnBy::holder) {
    startWaves();
}

void WaterGraphics::startWaves() {
    type = waterType;
    speeds.assign(data.vertices.size() / 2, 0.0F);
    if (!hasWaves()) {
        std::cout << "a water narrower than 3 columns has no waves\n";
    }
    WaterGraphics::updateLocalBounds();
}

bool WaterGraphics::hasWaves() const {
    return speeds.size() >= fewestColumns;
}

void WaterGraphics::updateLocalBounds() {
    localBounds = area;
    localBounds.top += waveRoom;
}

void WaterGraphics::draw() {
    drawStrip();
    splashEmiter.draw(); // droplets fly further than the water reaches
    finishDrawing();
}

void WaterGraphics::updateSurface() {
    if (!hasWaves()) {
        return;
    }
    moveColumns();
    if (ticks % ripplePeriod == 0) {
        ripple();
    }
    ++ticks;
    splashEmiter.updateParticles();
    // The ends have a neighbour on one side only, and follow it.
    std::vector<float>& points = data.vertices;
    points[1] = points[3];
    points[points.size() - 1] = points[points.size() - 3];
}

/// In place and from left to right: each column sees what those before it have become.
void WaterGraphics::moveColumns() {
    const auto dt = static_cast<float>(physicsModule().period);
    const float rest = area.top;
    const std::size_t count = speeds.size();
    float* const speed = speeds.data();
    float* const points = data.vertices.data();
    const auto y = [points](std::size_t column) -> float& { return points[column * 2 + 1]; };

    pull(y(1), speed[1], (y(2) + y(0) + rest) / 3.0F, dt);
    pull(y(count - 2), speed[count - 2], (y(count - 3) + y(count - 1) + rest) / 3.0F, dt);
    float distance = disturbance;
    for (std::size_t i = 2; i + 2 < count; ++i) {
        const float mean = (y(i + 2) + y(i - 2) + y(i - 1) + y(i + 1) + rest) / 5.0F;
        pull(y(i), speed[i], mean, dt);
        distance += std::abs(rest - y(i));
    }
    disturbance = distance / static_cast<float>(count);
}

/// The surface never quite sleeps.
void WaterGraphics::ripple() {
    const float strength = drawUnit();
    const float place = drawUnit();
    splash(area.left + (area.right - area.left) * place, columnWidth,
           strength * 2.0F * rippleForce - rippleForce);
}

void WaterGraphics::splash(float x, float width, float force) {
    const bool isPlace = std::isfinite(x) && std::isfinite(width) && std::isfinite(force);
    if (disturbance > busySurface || !hasWaves() || !isPlace) {
        return;
    }
    const float half = width * 0.5F;
    pushColumns(x, half, force);
    if (std::abs(force) >= leastDroplets) {
        throwDroplets(x, half, force);
    }
}

void WaterGraphics::pushColumns(float x, float half, float force) {
    const auto beyond = static_cast<float>(speeds.size() + 2); // no column is touched from there
    const auto columnAt = [this, beyond](float place) {
        const float column = std::round((place - area.left) / columnWidth);
        return static_cast<int>(std::clamp(column, -3.0F, beyond));
    };
    const int first = columnAt(x - half);
    const int last = columnAt(x + half);
    for (int i = first; i <= last; ++i) {
        push(i, force);
    }
    for (const int i : {last + 1, first - 1}) {
        push(i, force * rim * 0.5F);
    }
    for (const int i : {last + 2, first - 2}) {
        push(i, force * rim / 3.0F);
    }
}

void WaterGraphics::push(int column, float force) {
    if (column >= 0 && static_cast<std::size_t>(column) < speeds.size()) {
        speeds[static_cast<std::size_t>(column)] += force;
    }
}

// The order of the random draws is part of what a replayed run relies on.
void WaterGraphics::throwDroplets(float x, float half, float force) {
    const btVector3 origin = getTransformRef().getOrigin();
    const float left = origin.x() + x - half;
    const float right = origin.x() + x + half;
    const float level = origin.y() + area.top;
    const float strength = std::abs(force);

    float place = left;
    for (int i = 1; i <= mostDroplets && place <= right; ++i) {
        const float upwards = strength * (3.0F + 3.0F * drawUnit());
        const float sideways = (2.0F * drawUnit() - 1.0F) * -strength;
        splashEmiter.burstWithVelocity({place, level, 0.0F}, {sideways, upwards, 0.0F}, 0.0F);
        place = left + static_cast<float>(i) * columnWidth;
    }
    constexpr float scatter = 2.0F; // each component of the velocity becomes -1 to 3 times itself
    const float count = strength / leastDroplets;
    for (int i = 0; i < mostDroplets && static_cast<float>(i) < count; ++i) {
        splashEmiter.burstWithVelocity({left, level, origin.z()}, {-strength, strength, 0.0F},
                                       scatter);
        splashEmiter.burstWithVelocity({right, level, origin.z()}, {strength, strength, 0.0F},
                                       scatter);
    }
}
