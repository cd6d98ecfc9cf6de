#pragma once

#include "So_Addition.h"

/// Makes its object push what touches it along the object's own up axis, so that the push turns
/// with the object. Needs a physics object. A `Forcefield` has a fixed direction instead, and is
/// passed through.
class ForcefieldAdd : public So_Addition {
public:
    /// A multiple of the world's gravity: 1 on an upright object holds any body up against it.
    explicit ForcefieldAdd(float multiple)
        : So_Addition(AdditionType::forcefield),
          power(multiple) {}
    /// Reads what follows the type.
    explicit ForcefieldAdd(TextReader& stream);

    void save(TextWriter& stream) const override;
    void update(SceneObject* owner) override;

private:
    float power;
};
