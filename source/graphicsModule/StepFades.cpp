#include "GraphicsModule.h"

#include "InterfaceGraphicsObject.h"
#include "ParticleEmiter.h"

#include <cmath>

namespace {

constexpr float fadeStep = 0.01F; // a full fade lasts 100 steps, which scripts count on
constexpr float rounding = 1e-5F; // what 100 sums may be off without costing another step

template <std::size_t size>
void approach(std::array<float, size>& colour, const std::array<float, size>& target) {
    for (std::size_t i = 0; i < size; ++i) {
        const float distance = target[i] - colour[i];
        colour[i] = std::abs(distance) <= fadeStep + rounding
                        ? target[i]
                        : colour[i] + std::copysign(fadeStep, distance);
    }
}

void approach(InterfaceGraphicsObject& overlay, const Colour4& target) {
    Colour4 colour{};
    overlay.getColour(colour[0], colour[1], colour[2], colour[3]);
    approach(colour, target);
    overlay.setColour(colour[0], colour[1], colour[2], colour[3]);
}

float alphaOf(const InterfaceGraphicsObject& overlay) {
    Colour4 colour{};
    overlay.getColour(colour[0], colour[1], colour[2], colour[3]);
    return colour[3];
}

} // namespace

void GraphicsModule::updateStep() {
    approach(ambient, ambientTarget);
    approach(*sceneFade, sceneFadeTarget);
    approach(*screenFade, screenFadeTarget);
    bloodEmiter->updateParticles();
    sparkEmiter->updateParticles();
    dustEmiter->updateParticles();
}

void GraphicsModule::setSceneFade(float r, float g, float b, float a) {
    sceneFade->setColour(r, g, b, a);
    sceneFadeTarget = {r, g, b, a};
}

bool GraphicsModule::fadesFinished() const {
    return alphaOf(*sceneFade) == 0.0F && alphaOf(*screenFade) == 0.0F;
}
