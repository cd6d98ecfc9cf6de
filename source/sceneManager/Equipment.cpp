#include "Equipment.h"

#include "EqItem.h"

#include <algorithm>
#include <iostream>

Equipment::Equipment(Player* carrier, int room) : owner(carrier), capacity(room) {}

Equipment::~Equipment() {
    for (EqItem* item : items) {
        delete item;
    }
    delete current;
}

bool Equipment::add(EqItem* item) {
    if (static_cast<int>(items.size()) >= capacity) {
        return false;
    }
    if (item == current || std::find(items.begin(), items.end(), item) != items.end()) {
        std::cout << "jest juz taki obiekt EqItem\n";
        return false;
    }
    item->equipment = this;
    items.push_back(item);
    return true;
}
