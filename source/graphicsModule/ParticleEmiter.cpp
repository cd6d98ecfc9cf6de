#include "ParticleEmiter.h"

#include "Camera.h"
#include "GraphicsModule.h"
#include "Painter.h"
#include "Random.h"
#include "TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/SceneObject.h"

#include <BulletCollision/CollisionShapes/btConvex2dShape.h>
#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr float fullTurn = 6.2831855F;
constexpr float diagonal = 1.42F; // circle round a square, over half its side

/// Beyond it the turn of a tick is cut, as it is for bodies. Radians.
constexpr float mostTurn = 0.7853982F;

const btVector3 zAxis(0.0F, 0.0F, 1.0F);

bool isDisc(const btCollisionShape& shape) {
    return shape.getShapeType() == CONVEX_2D_SHAPE_PROXYTYPE &&
           static_cast<const btConvex2dShape&>(shape).getChildShape()->getShapeType() ==
               SPHERE_SHAPE_PROXYTYPE;
}

/// A place on the body: within its disc, or within the box round it.
btVector3 drawPlace(const btRigidBody& body) {
    btVector3 least;
    btVector3 most;
    body.getAabb(least, most);
    const float a = drawUnit();
    const float b = drawUnit();
    if (isDisc(*body.getCollisionShape())) {
        const float radius = (most.x() - least.x()) * 0.5F;
        return body.getWorldTransform().getOrigin() +
               btVector3(0.0F, a * radius, 0.0F).rotate(zAxis, fullTurn * b);
    }
    return {least.x() + (most.x() - least.x()) * b, least.y() + (most.y() - least.y()) * a, 0.0F};
}

bool isSeen(const Particle& particle, const Bounds& view) {
    const auto [x, y] = particle.transform.origin;
    const float r = particle.size * diagonal;
    return std::isfinite(r) && Bounds{x - r, y - r, x + r, y + r}.overlaps(view);
}

void paintParticle(const Particle& particle) {
    const auto& [turn, p] = particle.transform;
    const float s = particle.size;
    // The corners lie as far from the middle as the two diagonals reach, turned with it.
    const float x1 = s * (turn.cosine - turn.sine);
    const float y1 = s * (turn.sine + turn.cosine);
    const float x2 = y1;
    const float y2 = -x1;
    const auto& [r, g, b, a] = particle.colour;
    const float positions[] = {p.x - x1, p.y - y1, p.x - x2, p.y - y2,
                               p.x + x1, p.y + y1, p.x + x2, p.y + y2};
    const float colours[] = {r, g, b, a, r, g, b, a, r, g, b, a, r, g, b, a};
    static constexpr float texcoords[] = {0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F, 0.0F};
    painter().polygon({positions, texcoords, colours, 4});
}

} // namespace

ParticleEmiter::ParticleEmiter(const ParticleParams& look, DrawnBy drawer)
    : So_Addition(AdditionType::particleEmiter),
      drawnBy(drawer) {
    setParams(look);
    if (drawnBy == DrawnBy::frame) {
        graphicsModule().addObject(this);
    }
}

ParticleEmiter::~ParticleEmiter() {
    auto* module = existingService<GraphicsModule>();
    if (module != nullptr && drawnBy == DrawnBy::frame) {
        module->detachObject(this);
    }
}

So_Addition* ParticleEmiter::read(TextReader& stream) {
    return new ParticleEmiter(ParticleParams(stream));
}

void ParticleEmiter::setParams(const ParticleParams& look) {
    params = look;
    if (params.fade == 0.0F) {
        return; // no tick of a living particle lies in a fade of length 0
    }
    for (std::size_t i = 0; i < colourStep.size(); ++i) {
        colourStep[i] = (params.colour[i] - params.endColour[i]) / params.fade;
    }
    sizeStep = (params.size - params.endSize) / params.fade;
}

void ParticleEmiter::save(TextWriter& stream) const {
    So_Addition::save(stream);
    params.write(stream);
}

void ParticleEmiter::update(SceneObject* owner) {
    updateParticles();
    accumulator += params.rate;
    while (accumulator >= 1.0F && particles.size() < mostParticles) {
        emitFrom(*owner);
        accumulator -= 1.0F;
    }
    if (!(accumulator < 1.0F)) {
        accumulator = 0.0F; // what had no room is not owed, nor is what is no number
    }
}

void ParticleEmiter::updateParticles() {
    particles.tick({static_cast<float>(physicsModule().period),
                    {params.gravityX, params.gravityY},
                    params.fade,
                    colourStep,
                    sizeStep});
}

// The order of the random draws in the next three is part of what a replayed run relies on.

void ParticleEmiter::emitFrom(SceneObject& owner) {
    const btRigidBody& body = *owner.physicsObject->body;
    const btVector3 place = drawPlace(body);
    const float spin = drawSpin();
    btVector3 velocity = body.getWorldTransform().getBasis() * btVector3(0.0F, params.speed, 0.0F);
    velocity = velocity.rotate(zAxis, -params.spread + 2.0F * params.spread * drawUnit());
    if (randomSpeed) {
        velocity *= 0.5F + 0.5F * drawUnit();
    }
    addParticle(place, velocity, spin);
}

void ParticleEmiter::burst(const btVector3& position, unsigned count) {
    for (unsigned i = 0; i < count && particles.size() < mostParticles; ++i) {
        const float spin = drawSpin();
        const float factor = drawUnit();
        const float angle = -params.spread + 2.0F * params.spread * drawUnit();
        addParticle(position, btVector3(0.0F, params.speed, 0.0F).rotate(zAxis, angle) * factor,
                    spin);
    }
}

void ParticleEmiter::burstWithVelocity(const btVector3& position, const btVector3& velocity,
                                       float spreadFactor) {
    const float spin = drawSpin();
    float x = velocity.x();
    float y = velocity.y();
    if (spreadFactor != 0.0F) {
        x *= (1.0F - spreadFactor) + 2.0F * spreadFactor * drawUnit();
        y *= (1.0F - spreadFactor) + 2.0F * spreadFactor * drawUnit();
    }
    addParticle(position, {x, y, 0.0F}, spin);
}

void ParticleEmiter::addParticle(const btVector3& position, const btVector3& velocity,
                                 float angularSpeed) {
    const bool isPlace =
        std::isfinite(position.x() + position.y() + velocity.x() + velocity.y() + angularSpeed);
    if (particles.size() >= mostParticles || !isPlace) {
        return;
    }
    const auto dt = static_cast<float>(physicsModule().period);
    const float turn = std::clamp(angularSpeed * dt, -mostTurn, mostTurn);
    particles.add({{{1.0F, 0.0F}, {position.x(), position.y()}},
                   {velocity.x(), velocity.y()},
                   {std::cos(turn), std::sin(turn)},
                   params.life,
                   params.size,
                   params.colour});
}

void ParticleEmiter::draw() {
    if (particles.empty()) {
        return;
    }
    const GraphicsModule& module = graphicsModule();
    Painter& paint = painter();
    paint.pushTransform();
    module.camera->applyTransform(1.0F);
    paint.translate(0.0F, 0.0F, params.z);
    if (params.additive != 0) {
        paint.setBlend(BlendMode::add);
    }
    textureStore().bind(params.texture);
    for (std::size_t i = 0; i < particles.size(); ++i) {
        const Particle particle = particles[i];
        if (isSeen(particle, module.getView())) {
            paintParticle(particle);
        }
    }
    if (params.additive != 0) {
        paint.setBlend(BlendMode::alpha);
    }
    paint.popTransform();
}

btTransform& ParticleEmiter::getTransformRef() {
    static btTransform shared;
    shared.setIdentity(); // whoever moved it moved nothing
    return shared;
}

float ParticleEmiter::drawSpin() const {
    return -params.spin + 2.0F * params.spin * drawUnit();
}
