#pragma once

#include "So_Addition.h"

/// The hit points of an object that can break. Needs no physics object.
class HealthAdd : public So_Addition {
public:
    explicit HealthAdd(int points) : So_Addition(AdditionType::health), value(points) {}
    /// Reads what follows the type.
    explicit HealthAdd(TextReader& stream);

    void save(TextWriter& stream) const override;
    /// Shatters the owner when no hit point is left.
    void update(SceneObject* owner) override;
    /// Takes hit points away, below zero too.
    void take(int amount);

    int value; ///< Hit points; the object breaks below 1.
};
