#pragma once

#include "NameIndex.h"
#include "SceneObject.h"
#include "Service.h"

#include <map>
#include <string>
#include <vector>

class Player;
class btTypedConstraint;

/// What reading a map gives. Owns its contents until they are handed to a scene by `addScene`.
struct SceneBundle {
    std::vector<SceneObject*> objects;      ///< In file order.
    std::vector<btTypedConstraint*> joints; ///< In file order.

    SceneBundle() = default;
    ~SceneBundle(); ///< Deletes what was not handed over, with graphics and physics objects.
    SceneBundle(SceneBundle&& other) noexcept;
    SceneBundle& operator=(SceneBundle&& other) noexcept;
};

/// Owner of the scene: a flat list of objects, in order of adding, which is the order of `update`
/// and of saving.
class SceneManager {
    ServiceSlot<SceneManager> slot{this};

public:
    /// Registers the named commands, once in a process.
    SceneManager();
    ~SceneManager();
    SceneManager(const SceneManager&) = delete;
    SceneManager& operator=(const SceneManager&) = delete;

    /// Hands the parts to their modules and lists the object, which is owned from then on. A second
    /// add says "jest juz taki obiekt SceneObject".
    void addSceneObject(SceneObject* object);
    /// Removes and deletes at once; not from inside an `update`. An unknown object gets
    /// "niema takiego obiektu SceneObject".
    void removeSceneObject(SceneObject* object);
    /// Removes all objects at once; debris goes its own way.
    void clearScene();
    /// Removes at the end of the step. The way to remove from inside an `update`.
    void markForRemoval(SceneObject* object);
    void flushRemovals(); ///< Called by `PhysicsModule`.
    void ageDebris();     ///< Called by `PhysicsModule` once a step.

    /// The first object of exactly that name, or null.
    SceneObject* getSceneObject(const std::string& name) const;
    /// Whether the pointer is a listed object or a piece of debris; the test for stale pointers.
    bool contains(const SceneObject* object) const;

    /// Adds a loaded bundle: objects, then joints.
    void addScene(SceneBundle bundle);

    /// Prints the scene to a map file.
    /// @throws std::string if the file cannot be opened
    void saveMap(const std::string& path);
    /// Keeps a file's text in `storedScenes`; an entry that is there stays. Always true.
    /// @throws std::string if the file cannot be read or holds no packed text
    bool preloadScene(const std::string& path);
    /// Drops a file's text from `storedScenes`, as what the file holds is another one now.
    void forgetStoredScene(const std::string& path) { storedScenes.erase(path); }
    /// Puts ambient light and music in place and reads the stored text from its beginning.
    SceneBundle parseStoredScene(const std::string& path);

    /// Adds a piece of a shattered object, parts included.
    void addDebris(SceneObject* piece);

    int nextObjectNumber() { return ++objectCounter; }
    std::uint32_t nextSeed() { return seedCounter += seedStep; }
    std::size_t debrisCount() const { return debris.size(); }

    /// Those of the objects that have something to do in a step, in the same order: all that have a
    /// body, or additions when they come. The others are scenery.
    const std::vector<SceneObject*>& getActors() const { return actors; }

    std::vector<SceneObject*> objects; ///< Owned.
    Player* player = nullptr;          ///< The protagonist; not owned.
    int objectCounter = 0;             ///< The latest `number` of an object that moves.

private:
    void releaseParts(SceneObject* object);

    mutable NameIndex names;
    std::vector<SceneObject*> actors; // not owned

    /// Neighbours in the order of making shall have nothing in common: the golden ratio of 2^32.
    static constexpr std::uint32_t seedStep = 2654435769U;
    std::uint32_t seedCounter = 0;

    // Lists in order of entering, not sets of pointers: the order of removal reaches the solver,
    // and two runs of one game must agree.
    std::vector<SceneObject*> pendingRemovals; // null stands for one that went before its time
    std::vector<SceneObject*> debris;          // owned
    std::map<std::string, std::string> storedScenes; // path to unpacked text
};

SceneManager& sceneManager();
