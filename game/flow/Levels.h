#pragma once

#include "ChapterTable.h"

#include <optional>
#include <string>

/// What a level is played on.
struct Level {
    std::string map;                 ///< Bare file name in the maps directory.
    std::optional<Place> start = {}; ///< Of the character; else it is the object named STARTPOS.
    bool asMonster = false;          ///< The user plays a monster.
};

/// The level of a chapter, 1 to `chapterCount`.
Level levelOf(int chapter);

/// Replaces the scene by the level, with a new character in it that the user gets, and full health.
/// Without a place to start from the character stands where it was made. Nothing is changed if the
/// map cannot be read.
/// @throws std::string if the map cannot be read
void enterLevel(const Level& level);

/// Enters the level that was entered last, if no saved game has been loaded since. False if there
/// is none.
/// @throws std::string if its map cannot be read
bool restartLevel();
/// A saved game takes the place of the level: there is none to restart.
void forgetLevel();

/// Hands the scene's character to the user, after anything that was going on before: the
/// protagonist, or the monster that the user plays. A scene that has none gets no player.
void enterChapter(bool evil);

/// Enters the commands that enter levels: "INEWGAME1", and from chapter 2 on "CHAPTER2".
void registerLevels();
