#pragma once

#include "So_Addition.h"

/// Makes its object hurt what it hits hard enough, and what hits it, once a step for each point of
/// contact. Needs a physics object.
class DamageAdd : public So_Addition {
public:
    /// Hit points, and the least impulse of the solver (mass times units a second) that hurts: at 0
    /// every touch does.
    DamageAdd(int hitPoints, float leastImpulse)
        : So_Addition(AdditionType::damage),
          damage(hitPoints),
          threshold(leastImpulse) {}
    /// Reads what follows the type.
    explicit DamageAdd(TextReader& stream);

    void save(TextWriter& stream) const override;
    void update(SceneObject* owner) override;

private:
    int damage;
    float threshold;
};
