#pragma once

#include "GraphicsObject.h"
#include "ParticleParams.h"
#include "ParticlePool.h"
#include "sceneManager/So_Addons/So_Addition.h"

#include <array>
#include <cstddef>

/// Makes and draws particles. On a scene object it sprays from the object's body at a steady rate,
/// and the scene object owns it; with a rate of 0 it serves for bursts. Stands in the objects of
/// `GraphicsModule` from construction to destruction without being owned there, unless it is a part
/// of one of them. All its particles reach the device in one draw.
class ParticleEmiter : public So_Addition, public GraphicsObject {
public:
    /// Who calls `draw`: the frame, or an object of the frame that the emitter is a part of.
    enum class DrawnBy { frame, holder };

    /// An emitter that holds so many takes no more: nobody sees the next one, and a step must end
    /// whatever rate a map, or impulse a crash, asks for.
    static constexpr std::size_t mostParticles = 20'000;

    explicit ParticleEmiter(const ParticleParams& look, DrawnBy drawer = DrawnBy::frame);
    ~ParticleEmiter() override;

    /// Reads what follows the type. The result belongs to the caller.
    static So_Addition* read(TextReader& stream);

    void setParams(const ParticleParams& look);
    void save(TextWriter& stream) const override;

    /// One tick of motion, then emission from the owner's body, which it must have.
    void update(SceneObject* owner) override;
    /// One tick of motion.
    void updateParticles();

    /// `count` particles round world up, each with a speed between 0 and the full one.
    void burst(const btVector3& position, unsigned count);
    /// One particle. `spreadFactor`, 0 to 1, is the share of the velocity that is left to chance.
    void burstWithVelocity(const btVector3& position, const btVector3& velocity,
                           float spreadFactor);
    /// Angular speed in radians a second. Numbers that are none make no particle.
    void addParticle(const btVector3& position, const btVector3& velocity, float angularSpeed);

    const ParticlePool& getParticles() const { return particles; }

    void draw() override;
    float getZ() const override { return params.z; }
    void setZ(float z) override { params.z = z; }
    void getTransform(btTransform& out) const override { out = btTransform::getIdentity(); }
    btTransform& getTransformRef() override;
    void write(TextWriter& stream) const override { save(stream); }

    ParticleParams params; ///< Open to be edited; `setParams` where fade, colours or sizes change.
    float accumulator = 0.0F; ///< Particles owed.
    bool randomSpeed = false; ///< Emission at 0.5 to 1 times the speed.

private:
    void emitFrom(SceneObject& owner);
    float drawSpin() const;

    DrawnBy drawnBy;
    ParticlePool particles;
    std::array<float, 4> colourStep{};
    float sizeStep = 0.0F;
};
