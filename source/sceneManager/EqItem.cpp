#include "EqItem.h"

#include "Equipment.h"

#include <algorithm>

void EqItem::select() {
    if (equipment == nullptr || equipment->current == this) {
        return;
    }
    const auto place = std::find(equipment->items.begin(), equipment->items.end(), this);
    if (place != equipment->items.end()) {
        *place = equipment->current;
        equipment->current = this;
    }
}

SceneObject* EqItem::use(float, float, float, float, float) {
    return nullptr;
}
