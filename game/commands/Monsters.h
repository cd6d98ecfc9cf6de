#pragma once

#include <LinearMath/btVector3.h>

#include <vector>

class EvilPlayer;
class Player;

// Monsters and ghosts as commands bring them into a level.

/// A new hunter in the scene, which owns it. `speed` is in world units a second; without waypoints
/// it stands until it sees its prey.
EvilPlayer& addMonster(const btVector3& place, float speed,
                       const std::vector<btVector3>& waypoints = {});

/// A hunter that walks between the objects named DEST1 and DEST2 until it sees its prey. Nothing if
/// one of them is missing.
void spawnMonster(const btVector3& place);

/// A ghost as it leads the user through a level: hands can seize it, and loose things do not touch
/// it. It belongs to the caller until it is added to the scene.
Player& makeGuide();
