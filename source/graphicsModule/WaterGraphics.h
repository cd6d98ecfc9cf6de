#pragma once

#include "ParticleEmiter.h"
#include "StaticWaterGraphics.h"

#include <vector>

/// Water with waves: the surface is a chain of springs that rings, is hit by what falls in and
/// throws droplets. Its shape is not stored. Stream type 5.
///
/// The springs need neighbours: a water of fewer than 3 columns says so on standard output once and
/// keeps a straight surface.
class WaterGraphics : public StaticWaterGraphics {
public:
    WaterGraphics(float left, float bottom, float right, float top, int texture, float depth,
                  float parallax, int texcoordMode, float r, float g, float b, float a);
    /// Reads what follows the type; the physics object is attached later.
    /// @throws std::string "file corrupted"
    explicit WaterGraphics(TextReader& stream);

    void draw() override;
    void updateLocalBounds() override; ///< With room for waves.
    void updateSurface() override;
    void splash(float x, float width, float force) override;

    const std::vector<float>& getSpeeds() const { return speeds; }
    const ParticlePool& getDroplets() const { return splashEmiter.getParticles(); }
    float getDisturbance() const { return disturbance; }

private:
    void startWaves();
    void moveColumns();
    void ripple();
    void pushColumns(float x, float half, float force);
    void throwDroplets(float x, float half, float force);
    void push(int column, float force);
    bool hasWaves() const;

    ParticleEmiter splashEmiter;
    std::vector<float> speeds; // world units a second, a column each
    int ticks = 0;             // updates so far
    float disturbance = 0.0F;  // running mean of how far the surface is from rest, world units
};
