#pragma once

#include "sceneManager/So_Addons/CallbackAdd.h"

// The little ones that are hunted by the user as a monster: characters with the looks of the
// protagonist and a lamp's light each, who run from monsters and die of their bites.

namespace verb {

/// A chain of one word on a marker, which becomes a little one there, and on the little one
/// itself, which it moves. It is named OSOBA and its number, and ZBIEG and its number once it has
/// seen a monster and said the line. `speed` is in world units a second; 0 stays where it is.
ScriptCallback littleOne(int number, int line, float speed);

} // namespace verb
