#pragma once

#include "LightProperties.h"
#include "PhysicsGraphicsObject.h"
#include "sceneManager/So_Addons/So_Addition.h"

/// A light on a scene object: an addition that is drawn as a square into the light map, following
/// the object's body. Stands in the list of lights of `GraphicsModule` from construction to
/// destruction; the scene object owns it.
class LightAdd : public So_Addition, public PhysicsGraphicsObject {
public:
    explicit LightAdd(const LightProperties& look);
    ~LightAdd() override;

    /// Reads what follows the type. The result belongs to the caller.
    static So_Addition* read(TextReader& stream);

    /// Changes the light's look while it lives.
    void setProperties(const LightProperties& look);
    const LightProperties& getProperties() const { return properties; }

    void save(TextWriter& stream) const override;
    void update(SceneObject* owner) override;

    void draw() override; ///< Nothing before the first `update`.
    void write(TextWriter& stream) const override { save(stream); }

private:
    /// A light counts from its owner's first step on: before that it has no place.
    enum class State { waiting, lit };

    State state = State::waiting;
    LightProperties properties;
};
