#pragma once

#include "Level.h"

#include <map>

namespace mapc {

class Placement;

/// By the editor's id, the place in the level's objects that the object became or went into.
using PartOwners = std::map<int, std::size_t>;

/// Adds the joints of a level whose objects are built.
class JointBuilder {
public:
    /// All is borrowed.
    JointBuilder(Level& target, const PartOwners& partOwners, const Placement& places)
        : level(target),
          owners(partOwners),
          placement(places) {}

    /// @throws std::string for a reference or a value that does not fit
    void addHinge(const TiledObject& source);
    void addSlider(const TiledObject& source);

private:
    struct Side {
        int index = worldIndex;
        Pose pose;
    };

    Side sideOf(const TiledObject& source, const char* property) const;
    Side movingSide(const TiledObject& source) const;

    Level& level;
    const PartOwners& owners;
    const Placement& placement;
};

} // namespace mapc
