#pragma once

class SceneObject;
class So_Addition;

/// One round of the last chapter's room: lights the next of the fourteen lamps, green for a secret
/// that was found and red for one that was not. After the last it opens the trap door or the way.
/// Ends its script then.
void checkNextLamp(SceneObject* owner, So_Addition* link);
