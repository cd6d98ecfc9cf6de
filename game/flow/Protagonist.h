#pragma once

class Player;

/// The protagonist of the scene: the last one that the map brought, or else a new one at the
/// object named STARTPOS. The scene owns it.
/// @throws std::string if the map has neither
Player& placeProtagonist();
