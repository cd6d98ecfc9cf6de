#pragma once

class SceneObject;
class So_Addition;

// The four waves of the altar, as chains on the object SPAWN1, which brings a save back into the
// middle of one. The commands that the table of the chapter names.
namespace waves {

void spawn1(SceneObject*, So_Addition*);
void spawn2(SceneObject*, So_Addition*);
void spawn3(SceneObject*, So_Addition*);

/// The first wave, and the lock closes behind the protagonist.
void start(SceneObject*, So_Addition*);

// The last word of a wave's chain: from there on the next one waits.
void startWave2(SceneObject* owner, So_Addition* link);
void startWave3(SceneObject* owner, So_Addition* link);
void startWave4(SceneObject* owner, So_Addition* link);
void startEnd(SceneObject* owner, So_Addition* link);

// Loops that wait for the last monster of a wave and put the next one in their place.
void wave2(SceneObject* owner, So_Addition* link);
void wave3(SceneObject* owner, So_Addition* link);
void wave4(SceneObject* owner, So_Addition* link);

/// After the fourth the object GRAVITY wakes, and lifts what touches it.
void end(SceneObject* owner, So_Addition* link);

} // namespace waves
