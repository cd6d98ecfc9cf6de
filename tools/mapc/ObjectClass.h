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
    water,      ///< A box to swim in.
    marker,     ///< A named place.
    light,      ///< A light, on a body or at a place of its own.
    emitter,    ///< A source of particles, the same.
    rope,       ///< A chain of loose bodies.
    monster,    ///< What hunts the protagonist.
    way,        ///< A line that monsters walk along; nothing by itself.
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

/// Whether objects of the role are places, without a shape of their own.
constexpr bool isPlace(Role role) {
    return role == Role::marker || role == Role::light || role == Role::emitter;
}

/// The texture that the object names, or that of its class; empty for "none".
/// @throws std::string for a name that cannot be stored
std::string textureOf(const Properties& properties, const ObjectClass& objectClass);

/// The properties of look and body of an object of the class.
/// @throws std::string for a value that does not fit
Appearance readAppearance(const TiledObject& object, const ObjectClass& objectClass);
Body readBody(const Properties& properties, const ObjectClass& objectClass);

} // namespace mapc
