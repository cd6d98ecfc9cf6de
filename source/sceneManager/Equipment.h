#pragma once

#include <vector>

class EqItem;
class Player;

/// What a character carries.
class Equipment {
public:
    explicit Equipment(Player* owner, int capacity = 10);
    ~Equipment(); ///< Deletes the items, then the current one.
    Equipment(const Equipment&) = delete;
    Equipment& operator=(const Equipment&) = delete;

    /// Takes the item over. False if it is full, or if the item is there already, with the line
    /// "jest juz taki obiekt EqItem".
    bool add(EqItem* item);

    Player* owner; ///< Not owned.
    int capacity;
    EqItem* current = nullptr;  ///< Owned; may be null.
    std::vector<EqItem*> items; ///< Owned; an entry may be null.
};
