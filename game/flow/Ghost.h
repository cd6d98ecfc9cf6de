#pragma once

class Player;

/// A new ghost at the place, in world units: an invisible character that never moves by itself and
/// that nothing bumps into, with the blue light of its emitter. It belongs to the caller until it
/// is added to the scene.
Player* makeGhost(float x, float y);
