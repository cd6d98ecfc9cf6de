#pragma once

class Player;

// Monsters that do not hunt by themselves. They belong to the caller until they are added to the
// scene.

/// The name of the monster that the user plays.
constexpr auto playedMonsterName = "EVILPLAYERLVL";

/// One of that name, which the user plays.
Player* makePlayedMonster();
/// One for a stage: it stands still in mid air, makes no sound by itself, and light does not hurt
/// it.
Player* makePuppet();
