#pragma once

#include "Yaw.h"

#include <array>
#include <cstddef>
#include <vector>

/// A textured, spinning square that flies, fades and dies. It stays in the plane, where a place and
/// a turn are two numbers each.
struct Particle {
    struct Vector {
        float x, y;
    };
    struct Transform {
        Yaw turn;
        Vector origin; ///< World units.
    };

    Transform transform;
    Vector velocity; ///< World units a second.
    Yaw tickTurn;    ///< By which it turns in a tick.
    float life;      ///< Ticks left.
    float size;      ///< Half the side, world units.
    std::array<float, 4> colour;
};

/// The particles of one emitter, oldest first. Each of their numbers has an array of its own, so
/// that a tick moves several particles with one instruction, and leaves the colours of those that
/// do not fade out of the cache.
class ParticlePool {
public:
    /// What a tick does to each of them.
    struct Tick {
        float seconds;
        Particle::Vector gravity;        ///< Added to the velocity, world units a second.
        float fade;                      ///< Ticks of life left below which the next two count.
        std::array<float, 4> colourStep; ///< Taken from the colour.
        float sizeStep;                  ///< Taken from the size.
    };

    void add(const Particle& particle);
    /// Drops those whose life is used up, and moves, turns and fades the others.
    void tick(const Tick& change);

    std::size_t size() const { return numbers[life].size() - gone; }
    bool empty() const { return size() == 0; }
    /// A copy of one of them, 0 being the oldest.
    Particle operator[](std::size_t index) const;

private:
    enum Number {
        x,
        y,
        vx,
        vy,
        cosine,
        sine,
        tickCosine,
        tickSine,
        half,
        red,
        life = red + 4,
        numberCount
    };

    void drop();
    void closeUp();
    void move(const Tick& change);
    void fade(const Tick& change);
    float* from(int number) { return numbers[static_cast<std::size_t>(number)].data() + gone; }

    std::array<std::vector<float>, numberCount> numbers;
    /// At the front, where the oldest were. They give their room back when they are the most.
    std::size_t gone = 0;
    std::size_t dying = 0; // of the others, those whose life is used up
};
