#include "SoundManager.h"

#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float fullVolume = 128.0F;
constexpr float hearingLimit = 2000.0F;     // of the bent distance; 1000 world units
constexpr float distanceBend = 0.001F;      // share of the squared distance on top
constexpr float shortestFearPeriod = 60.0F; // steps
constexpr float calmFearPeriod = 300.0F;    // steps; no breath is heard
constexpr int loudestFear = 40;

} // namespace

SoundManager& soundManager() {
    return service<SoundManager>();
}

std::uint8_t SoundManager::distanceVolume(const btVector3& position) const {
    if (position.x() == 0.0F && position.y() == 0.0F && position.z() == 0.0F) {
        return static_cast<std::uint8_t>(fullVolume);
    }
    const Camera& camera = *graphicsModule().camera;
    const float x = camera.getX() - position.x();
    const float y = camera.getY() - position.y();
    const float distance = std::sqrt(x * x + y * y + position.z() * position.z());
    const float bent = distance + distance * distance * distanceBend;
    if (!(bent <= hearingLimit)) {
        return 0;
    }
    return static_cast<std::uint8_t>(fullVolume - fullVolume * (bent / hearingLimit));
}

// The mixer stands behind these; without one all is silent, and the game goes on all the same.

void SoundManager::play(const std::string&, const btVector3&, SoundOwner, std::uint8_t, bool) {}

void SoundManager::playFlat(const std::string&, std::uint8_t) {}

void SoundManager::playAt(const std::string&, const btVector3&) {}

void SoundManager::stop(const std::string&, SoundOwner) {}

void SoundManager::stopAll(const std::string&) {}

void SoundManager::stopOwner(SoundOwner) {}

void SoundManager::playMusic(const std::string& name) {
    currentMusic = name;
}

void SoundManager::addFear(float periodDelta, int levelDelta) {
    fearPeriod = std::clamp(fearPeriod + periodDelta, shortestFearPeriod, calmFearPeriod);
    fearLevel = std::clamp(fearLevel + levelDelta, 0, loudestFear);
}

void SoundManager::update() {}
