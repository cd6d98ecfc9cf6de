#pragma once

#include "Verbs.h"

#include <string>
#include <vector>

class Player;

// Ghosts that lead. The stage of its walk that a ghost is in is the ghost's own name, so that a
// saved game keeps it.

/// What a ghost of that name does.
struct GhostStage {
    const char* name;
    const char* place; ///< The object that it goes to; null for staying where it is.
    const char* next;  ///< Its name from then on; the same for staying in the stage.
    float nearness;    ///< Waits until the protagonist is as near, or has passed; 0 does not wait.
    verb::Speech says; ///< When it has said what it was saying; line 0 for nothing.
    const char* script = nullptr; ///< Run when the stage is over; null for none.
};

namespace verb {

/// A command that stands as a chain on a ghost: moves it from stage to stage by `step` units a
/// step. A ghost whose place is missing, or whose name is no stage, walks no further.
ScriptCallback walk(std::vector<GhostStage> stages, float step);

/// Adds a ghost of that name to the scene, at the place of an object, with a chain to walk by.
ScriptCallback putGhost(const std::string& place, const std::string& name,
                        const std::string& chain);

/// A ghost named GHOST stands before the protagonist, who has to listen, and goes after 1000 steps.
/// Then a script goes on with the words of `after`.
ScriptCallback haunt(std::vector<Speech> lines, const std::string& after = "");

/// The named ghost bursts and goes.
ScriptCallback dismiss(std::string ghost);

} // namespace verb

/// The ghost of the scene: its first character that is neither protagonist nor monster. Null if
/// there is none.
Player* findGhost();

/// Gives it a lamp's light of that reach and colour, in the place of the one that it has.
void kindle(SceneObject& ghost, float size, float red, float green, float blue);

/// Takes the place of the first name, if there is one.
void rename(SceneObject& object, const std::string& name);

/// Ends a loop, wherever it runs: as a global script, or as a chain on an object.
void endLoop(SceneObject* owner, So_Addition* link);
