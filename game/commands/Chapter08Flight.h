#pragma once

class SceneObject;
class So_Addition;

// The flight out of the body: a light that goes where the mouse points and bears no touch, and what
// it hunts. THING is the light, ENEMY the prey, SHIELD1 to SHIELD3 are around it. All are commands.
namespace flight {

/// The light, over the protagonist. Nothing if there is one already, or no protagonist.
void createThing(SceneObject* owner, So_Addition* link);
/// Loop: the user steers the light until it touches the prey, which ends the chapter. Whatever else
/// it touches sends it back.
void controlThing(SceneObject* owner, So_Addition* link);

/// Without an owner, raises the shields; as a chain on one, until it is seen as it should be.
void setShield(SceneObject* owner, So_Addition* link);
/// Stands on a shield, which lets everything through, fades and goes.
void unshield(SceneObject* owner, So_Addition* link);

/// Stands on the prey, which hovers at the place that is left to it, with its shields around it.
void behaveAsPrey(SceneObject* owner, So_Addition* link);

/// Stands on a rift: the light that touches it comes out at TELDEST.
void passRift(SceneObject* owner, So_Addition* link);

} // namespace flight
