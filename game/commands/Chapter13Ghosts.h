#pragma once

class SceneObject;
class So_Addition;

// The ghost that has stopped leading: it annoys, and in the end it fights. Each is a command.
namespace ghosts {

/// A monster comes out of the ghost of the scene, whichever that is.
void breatheMonster(SceneObject* owner, So_Addition* link);

/// Stands on a ghost that circles the protagonist and comments. Whoever seizes it is rid of it.
void annoy(SceneObject* owner, So_Addition* link);

/// A ghost named GHOST appears at B0, and the barrier closes.
void challenge(SceneObject* owner, So_Addition* link);

/// Stands on that ghost: it comes to B1, where the two talk, and the fight begins.
void beginBattle(SceneObject* owner, So_Addition* link);

/// Stands on that ghost: it flies among B1 to B5 and lets monsters out; seized five times it has
/// lost.
void battle(SceneObject* owner, So_Addition* link);

} // namespace ghosts
