#pragma once

#include <memory>
#include <string>
#include <vector>

class GameDriver;

/// A question about the running game that a direction waits for or expects.
struct Condition {
    // clang-format off
    enum class Kind {
        coordinate, touching, standing, speaking, on, gone, faded, holding, free, finished
    };
    // clang-format on

    Kind kind = Kind::standing;
    std::string name; ///< Object asked about; empty means the protagonist.
    char axis = 'x';
    bool above = true;
    float value = 0.0F; ///< World units.

    bool holds(const GameDriver& game) const;
};

/// One line of a walkthrough.
struct Direction {
    // clang-format off
    enum class Verb { hold, release, press, walk, jump, wait, aim, expect, reload, grab, drop, toss, climb };
    // clang-format on

    int line = 0;
    std::string text; ///< As it stands, for messages.
    Verb verb = Verb::wait;
    std::string key; ///< left, right, up, down, shift, mouse, mouse2.
    int steps = 0;   ///< For how long, where no condition is told.
    bool untilCondition = false;
    Condition condition;
    int limit = 900;          ///< Steps until an unmet condition fails.
    float x = 0.0F, y = 0.0F; ///< Of an aim: world units from the protagonist.
    std::string name;         ///< Of an object that is aimed at, grabbed or climbed; may be empty.
};

/// Directions that play a level as a user would, by keys, mouse and time. One a line:
///
///     hold KEY | release KEY                  KEY is left, right, up, down, shift, mouse, mouse2
///     walk left|right N | until CONDITION     holds the key meanwhile
///     jump N                                  holds up for N steps
///     wait N | until CONDITION
///     press KEY                               for two steps; any key of the above, or escape
///     aim X Y | aim at NAME                   mouse, in world units from the character
///     expect CONDITION
///     reload                                  saves the scene and loads it again
///     grab [NAME]                             holds mouse until that, or anything, is in hand
///     drop                                    lets go of it
///     throw X Y | throw at NAME               aims, waits for what is held to follow, and throws
///     it climb NAME until CONDITION              hand over hand up a liana, and hangs on at the
///     end
///
/// CONDITION is "[NAME] x|y above|below V", "touching NAME", "on NAME", "holding NAME", "NAME
/// gone", "NAME faded" (nothing is seen of it any more), "standing", "speaking", "free" (the user
/// has control of the legs, and the world runs) or "finished" (a chapter has been). A condition may
/// be followed by "within N" steps. Empty lines and those that begin with # are notes.
class Walkthrough {
public:
    /// @throws std::string with file and line if a direction is not understood
    explicit Walkthrough(const std::string& path);

    /// Plays all directions.
    /// @throws std::string with file, line and the character's place if one cannot be followed
    void play(GameDriver& game) const;

    const std::vector<Direction>& getDirections() const { return directions; }
    /// Plays one direction.
    void follow(const Direction& direction, GameDriver& game) const;
    static void followHands(const Direction& direction, GameDriver& game);

private:
    std::string path;
    std::vector<Direction> directions;
};
