#pragma once

#include "sceneManager/So_Addons/CallbackAdd.h"

// What lives behind the gate and behind the window of the third chapter.

/// Three hunters in the forecourt, outside the gate.
void spawnBeforeGate(SceneObject* owner, So_Addition* link);

/// Loop: button WINBUT1 or 2 sinks to its place, and its half of the power comes on.
ScriptCallback pressButton(int number);
/// Lamp POWER1 or 2. With both buttons down the window wakes.
ScriptCallback powerWindow(int number);

/// The window's lamp comes on, and then one pair of eyes after the other.
ScriptCallback openEyes();
/// Somebody at ZL1 to ZL6, who watches.
ScriptCallback wakeBehindWindow(int number);
/// The lamp goes out, the window breaks, and those behind it are free.
void stopWindow(SceneObject* owner, So_Addition* link);

/// The last wave: chains on OKNO, which a saved game keeps.
void startLastWave(SceneObject* owner, So_Addition* link);
void spawnLast(SceneObject* owner, So_Addition* link);
/// In each step: when none of them is left on this side of the gate, the way out opens.
void awaitEnd(SceneObject* owner, So_Addition* link);

/// The big button goes down, and the lid starts to rise.
void pressDaylight(SceneObject* owner, So_Addition* link);
/// Loop: the lid rises off the daylight under it, which nothing from behind the window survives.
void liftLid(SceneObject* owner, So_Addition* link);
