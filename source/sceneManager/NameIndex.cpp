#include "NameIndex.h"

#include "SceneObject.h"
#include "So_Addons/ObjectNameAdd.h"

#include <algorithm>

SceneObject* NameIndex::find(std::string_view name, const std::vector<SceneObject*>& objects) {
    if (listedChanges != changes) {
        list(objects);
    }
    const auto place =
        std::lower_bound(names.begin(), names.end(), name,
                         [](const auto& entry, std::string_view key) { return entry.first < key; });
    return place != names.end() && place->first == name ? place->second : nullptr;
}

void NameIndex::list(const std::vector<SceneObject*>& objects) {
    names.clear();
    for (SceneObject* object : objects) {
        for (const So_Addition* addition : object->additions) {
            if (addition->type == AdditionType::objectName) {
                names.emplace_back(static_cast<const ObjectNameAdd*>(addition)->getName(), object);
            }
        }
    }
    std::stable_sort(names.begin(), names.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    listedChanges = changes;
}
