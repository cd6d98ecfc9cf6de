#include "Ratio.h"

#include "Random.h"
#include "graphicsModule/ParticleEmiter.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>
#include <vector>

// What as many particles as an emitter may hold cost a step, against a bare loop over an array that
// moves, turns, fades, removes and makes the same.

namespace {

constexpr float side = 50.0F; // half of the box that sprays
constexpr float life = 100.0F;

ParticleParams fountain() {
    ParticleParams params;
    params.size = 10.0F;
    params.life = life;
    params.colour = {1.0F, 0.5F, 0.2F, 1.0F};
    params.fade = 60.0F;
    params.endSize = 20.0F;
    params.speed = 150.0F;
    params.gravityY = -3.0F;
    params.spin = 5.0F;
    params.spread = 0.5F;
    params.rate = static_cast<float>(ParticleEmiter::mostParticles) / life;
    return params;
}

class BareFountain {
public:
    explicit BareFountain(const ParticleParams& look) : params(look) {
        for (std::size_t i = 0; i < 4; ++i) {
            colourStep[i] = (params.colour[i] - params.endColour[i]) / params.fade;
        }
        sizeStep = (params.size - params.endSize) / params.fade;
    }

    void step(float dt) {
        std::size_t alive = 0;
        for (std::size_t i = 0; i < drops.size(); ++i) {
            if (drops[i].life > 0.0F) {
                drops[alive] = drops[i];
                move(drops[alive++], dt);
            }
        }
        drops.resize(alive);
        owed += params.rate;
        for (; owed >= 1.0F && drops.size() < ParticleEmiter::mostParticles; owed -= 1.0F) {
            make(dt);
        }
        owed = std::min(owed, 0.0F);
        benchmark::DoNotOptimize(drops.data());
    }
    std::size_t size() const { return drops.size(); }

private:
    struct Drop {
        float x, y, vx, vy, cosine, sine, turnCosine, turnSine, life, size;
        float colour[4];
    };

    void move(Drop& drop, float dt) const {
        drop.vx += params.gravityX;
        drop.vy += params.gravityY;
        drop.x += drop.vx * dt;
        drop.y += drop.vy * dt;
        const float cosine = drop.cosine * drop.turnCosine - drop.sine * drop.turnSine;
        const float sine = drop.sine * drop.turnCosine + drop.cosine * drop.turnSine;
        const float mend = 1.5F - 0.5F * (cosine * cosine + sine * sine);
        drop.cosine = cosine * mend;
        drop.sine = sine * mend;
        if (params.fade > drop.life) {
            for (std::size_t i = 0; i < 4; ++i) {
                drop.colour[i] -= colourStep[i];
            }
            drop.size -= sizeStep;
        }
        drop.life -= 1.0F;
    }

    void make(float dt) {
        const float y = (2.0F * drawUnit() - 1.0F) * side;
        const float x = (2.0F * drawUnit() - 1.0F) * side;
        const float turn = (2.0F * drawUnit() - 1.0F) * params.spin * dt;
        const float angle = (2.0F * drawUnit() - 1.0F) * params.spread;
        drops.push_back({x,
                         y,
                         -params.speed * std::sin(angle),
                         params.speed * std::cos(angle),
                         1.0F,
                         0.0F,
                         std::cos(turn),
                         std::sin(turn),
                         params.life,
                         params.size,
                         {params.colour[0], params.colour[1], params.colour[2], params.colour[3]}});
    }

    ParticleParams params;
    float colourStep[4]{};
    float sizeStep = 0.0F;
    float owed = 0.0F;
    std::vector<Drop> drops;
};

void liveParticles(benchmark::State& state) {
    const std::unique_ptr<PhysicsObject> body(createBox(0, 0, side, side, 0.0F, 0.0F, 0.0F));
    SceneObject nozzle({body.get(), nullptr});
    ParticleEmiter emitter(fountain());
    BareFountain bare(fountain());
    const auto dt = static_cast<float>(physicsModule().period);
    for (int i = 0; i < 2 * static_cast<int>(life); ++i) {
        emitter.update(&nozzle);
        bare.step(dt);
    }
    if (emitter.getParticles().size() != ParticleEmiter::mostParticles ||
        bare.size() != ParticleEmiter::mostParticles) {
        state.SkipWithError("not all are in flight");
    }
    compare(
        state, 500, 1.5, [&] { emitter.update(&nozzle); }, [&] { bare.step(dt); });
}

} // namespace

BENCHMARK(liveParticles)->Iterations(1);
