#pragma once

#include "Level.h"

#include <span>
#include <string>

namespace mapc {

/// What an object of the editor becomes.
enum class Role {
    scenery,    ///< Drawn only.
    still,      ///< A body that never moves.
    loose,      ///< A body that falls, rolls and is pushed.
    mesh,       ///< Triangles without a body.
    sensor,     ///< A body that feels touches and lets everything through.
    forcefield, ///< The same, pushing what is in it.
    marker,     ///< A named place.
    hinge,
    slider,
};

/// A class that the editor offers, with what its objects are made of unless they say otherwise.
/// `content/tolmere.tiled-project` shows the same values to the designer.
struct ObjectClass {
    const char* name;
    Role role;
    const char* texture;
    float z;
    TexcoordMode texcoordMode;
    float mass;
    float friction;
    float restitution;
};

std::span<const ObjectClass> objectClasses();

/// Null for an unknown name.
const ObjectClass* findObjectClass(const std::string& name);

/// The properties of look and body of an object of the class.
/// @throws std::string for a value that does not fit
Appearance readAppearance(const TiledObject& object, const ObjectClass& objectClass);
Body readBody(const Properties& properties, const ObjectClass& objectClass);

} // namespace mapc
