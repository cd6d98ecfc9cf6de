#pragma once

/// Enters all named commands of the story into `callbackTable`. One of the few calls upward: the
/// `SceneManager` makes it once in a process, before any map is read, and `game/` defines it.
void registerNamedCommands();
