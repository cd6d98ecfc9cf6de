#include "NameIndex.h"

#include "SceneObject.h"
#include "So_Addons/ObjectNameAdd.h"

SceneObject* NameIndex::find(std::string_view name, const std::vector<SceneObject*>& objects) {
    if (listedChanges != changes) {
        list(objects);
    }
    const auto place = names.find(name);
    return place != names.end() ? place->second : nullptr;
}

void NameIndex::list(const std::vector<SceneObject*>& objects) {
    names.clear();
    for (SceneObject* object : objects) {
        for (const So_Addition* addition : object->additions) {
            if (addition->type == AdditionType::objectName) {
                names.emplace(static_cast<const ObjectNameAdd*>(addition)->getName(), object);
            }
        }
    }
    listedChanges = changes;
}
