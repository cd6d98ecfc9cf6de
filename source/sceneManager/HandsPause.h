#pragma once

class Hands;
class Player;

/// Empties the hands of a character for as long as this lives, without a sound, so that a save
/// holds no joint between them: a loaded character starts with empty hands. What was held comes to
/// rest, and is taken up again at the end if it is still there.
class HandsPause {
public:
    /// The character may be null, and may carry anything or nothing.
    explicit HandsPause(Player* player);
    ~HandsPause();
    HandsPause(const HandsPause&) = delete;
    HandsPause& operator=(const HandsPause&) = delete;

private:
    Hands* emptied = nullptr; // null if nothing was held
};
