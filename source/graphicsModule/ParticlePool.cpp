#include "ParticlePool.h"

namespace {

void accelerate(float* __restrict place, float* __restrict velocity, float gravity, float seconds,
                std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        velocity[i] += gravity;
        place[i] += velocity[i] * seconds;
    }
}

/// Rounding would make the turn grow or shrink in time: its length is brought back to 1 by the
/// first term of the inverse root's series.
void turn(float* __restrict cosine, float* __restrict sine, const float* __restrict byCosine,
          const float* __restrict bySine, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const float c = cosine[i] * byCosine[i] - sine[i] * bySine[i];
        const float s = sine[i] * byCosine[i] + cosine[i] * bySine[i];
        const float mend = 1.5F - 0.5F * (c * c + s * s);
        cosine[i] = c * mend;
        sine[i] = s * mend;
    }
}

/// From the values of those that have less than `limit` to live.
void subtract(float* __restrict values, float step, const float* __restrict lives, float limit,
              std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        values[i] -= limit > lives[i] ? step : 0.0F;
    }
}

/// How many have none left then.
std::size_t age(float* life, std::size_t count) {
    int living = 0;
    for (std::size_t i = 0; i < count; ++i) {
        life[i] -= 1.0F;
        living += life[i] > 0.0F ? 1 : 0;
    }
    return count - static_cast<std::size_t>(living);
}

} // namespace

void ParticlePool::add(const Particle& particle) {
    const auto& [transform, velocity, tickTurn, ticks, size, colour] = particle;
    const std::array<float, numberCount> values{
        transform.origin.x,  transform.origin.y, velocity.x,    velocity.y, transform.turn.cosine,
        transform.turn.sine, tickTurn.cosine,    tickTurn.sine, size,       colour[0],
        colour[1],           colour[2],          colour[3],     ticks};
    for (std::size_t i = 0; i < values.size(); ++i) {
        numbers[i].push_back(values[i]);
    }
    dying += ticks > 0.0F ? 0 : 1;
}

Particle ParticlePool::operator[](std::size_t index) const {
    const auto at = [&](Number number) { return numbers[number][gone + index]; };
    Particle particle{{{at(cosine), at(sine)}, {at(x), at(y)}},
                      {at(vx), at(vy)},
                      {at(tickCosine), at(tickSine)},
                      at(life),
                      at(half),
                      {}};
    for (std::size_t i = 0; i < particle.colour.size(); ++i) {
        particle.colour[i] = numbers[red + i][gone + index];
    }
    return particle;
}

void ParticlePool::tick(const Tick& change) {
    if (numbers[life].empty()) {
        return;
    }
    drop();
    move(change);
    fade(change);
    dying = age(from(life), size());
}

/// The oldest are mostly the first to die: the others stay where they are then.
void ParticlePool::drop() {
    while (dying > 0 && !(numbers[life][gone] > 0.0F)) {
        ++gone;
        --dying;
    }
    if (dying > 0 || gone > size()) {
        closeUp();
    }
}

/// The living close up over the dead. Who lives is read until the last, the lives themselves.
void ParticlePool::closeUp() {
    const std::vector<float>& lives = numbers[life];
    for (std::vector<float>& values : numbers) {
        auto end = values.begin();
        for (std::size_t i = gone; i < lives.size(); ++i) {
            if (lives[i] > 0.0F) {
                *end++ = values[i];
            }
        }
        values.erase(end, values.end());
    }
    gone = 0;
    dying = 0;
}

void ParticlePool::move(const Tick& change) {
    const std::size_t count = size();
    accelerate(from(x), from(vx), change.gravity.x, change.seconds, count);
    accelerate(from(y), from(vy), change.gravity.y, change.seconds, count);
    turn(from(cosine), from(sine), from(tickCosine), from(tickSine), count);
}

void ParticlePool::fade(const Tick& change) {
    const float* lives = from(life);
    std::size_t count = size();
    while (count > 0 && !(change.fade > lives[count - 1])) {
        --count; // the young, whose colours nobody has to fetch
    }
    subtract(from(half), change.sizeStep, lives, change.fade, count);
    for (std::size_t i = 0; i < change.colourStep.size(); ++i) {
        subtract(from(red + static_cast<int>(i)), change.colourStep[i], lives, change.fade, count);
    }
}
