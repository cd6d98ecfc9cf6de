#pragma once

#include "LightProperties.h"
#include "PhysicsGraphicsObject.h"
#include "sceneManager/So_Addons/So_Addition.h"

#include <cstdint>

/// A light on a scene object: an addition that is drawn as a square into the light map, following
/// the object's body. Stands in the list of lights of `GraphicsModule` from construction to
/// destruction; the scene object owns it.
class LightAdd : public So_Addition, public PhysicsGraphicsObject {
public:
    explicit LightAdd(const LightProperties& look);
    ~LightAdd() override;

    /// Reads what follows the type. The result belongs to the caller.
    static So_Addition* read(TextReader& stream);

    /// Changes the light's look while it lives. Flicker goes on where it is.
    void setProperties(const LightProperties& look);
    const LightProperties& getProperties() const { return properties; }

    void save(TextWriter& stream) const override;
    void update(SceneObject* owner) override;

    void draw() override; ///< Nothing before the first `update`.
    void write(TextWriter& stream) const override { save(stream); }
    void refreshTransform() override;
    /// Draws the light once more, as a lamp that is seen, if an odd flicker period asks for it.
    virtual void drawGlow();

    /// False before the first `update`, when the light has no place yet.
    bool isLit() const { return state == State::lit; }
    /// World point that shadows are cast from, as of the last `refreshTransform`.
    const btVector3& getShadowOrigin() const { return shadowOrigin; }

private:
    enum class State { waiting, lit };
    struct Offset {
        float x, y;
    };

    void flicker(std::uint32_t tick, std::uint32_t ownerSeed);
    void startSegment(std::uint32_t tick, std::uint32_t ownerSeed);

    State state = State::waiting;
    // Flicker glides from the one end of a segment of time to the other.
    float prevIntensity = 1.0F;
    float nextIntensity = 1.0F;
    Offset offset; // that shadows are cast from now, in the light's local space
    Offset prevOffset;
    Offset nextOffset;
    btVector3 shadowOrigin{0.0F, 0.0F, 0.0F};
    LightProperties properties;
};
