#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

class SceneObject;

/// Finds the scene's objects by their names. Scripts ask for some in every step, and most objects
/// of a level are scenery without a name: so the names are listed once, and again only when one has
/// changed.
class NameIndex {
public:
    /// To be called when a name is given, taken or changed, and when the bearer of one enters or
    /// leaves a scene.
    static void forget() { ++changes; }

    /// The first of the objects with exactly that name, or null. Always the same list of objects.
    SceneObject* find(std::string_view name, const std::vector<SceneObject*>& objects);

private:
    static inline unsigned changes = 1;

    void list(const std::vector<SceneObject*>& objects);

    unsigned listedChanges = 0;
    std::unordered_map<std::string_view, SceneObject*> names; // in the additions' own words
};
