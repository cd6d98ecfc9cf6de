#pragma once

class btPersistentManifold;

/// Plays what the contacts of one step sound like: a thud with dust for a hard new contact, the
/// rolling loop for bodies that slide or roll over each other.
class ImpactSounds {
public:
    /// Listens to one pair of bodies, if both make noise.
    void hear(const btPersistentManifold& manifold);
    /// After the last pair: the rolling loop ends in the first step in which nothing rolls.
    void finish() const;

private:
    bool rolling = false;
};
