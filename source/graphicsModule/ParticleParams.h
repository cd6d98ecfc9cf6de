#pragma once

#include <array>

class TextReader;
class TextWriter;

/// What an emitter's particles are like, and its stored form, in this order. A tick is a step.
struct ParticleParams {
    ParticleParams() = default;
    /// @throws std::string "file corrupted"
    explicit ParticleParams(TextReader& stream);

    void write(TextWriter& stream) const;

    float size = 0.0F;                ///< Half the side at birth, world units.
    float z = 0.0F;                   ///< Depth of all particles.
    int texture = -1;                 ///< Stored as its file name.
    float life = 0.0F;                ///< Ticks.
    std::array<float, 4> colour{};    ///< At birth, red, green, blue, alpha.
    float fade = 0.0F;                ///< Ticks at the end of life in which colour and size change.
    float endSize = 0.0F;             ///< Half the side at death.
    std::array<float, 4> endColour{}; ///< At death.
    float speed = 0.0F;               ///< At birth, world units a second.
    float gravityX = 0.0F;            ///< Added to the velocity at each tick, world units a second.
    float gravityY = 0.0F;            ///< See `gravityX`.
    float spin = 0.0F;                ///< Greatest angular speed, radians a second, either way.
    float spread = 0.0F;              ///< Half the angle of the cone of emission, radians.
    float rate = 0.0F;                ///< Particles a tick; fractions add up.
    int additive = 0;                 ///< Non-zero adds to what is there.
};
