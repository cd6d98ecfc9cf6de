#include "ObjectClass.h"

#include "sceneManager/MonsterParts.h"

#include <algorithm>
#include <array>

namespace mapc {

namespace {

constexpr const char* invisible = "null.tga";

using enum Role;
using enum TexcoordMode;

//  name, role, texture, z, texcoordMode, mass, friction, restitution
constexpr auto classTable = std::to_array<ObjectClass>({
    {"Scenery", scenery, "stone.tga", -1.5F, world, 0.0F, 0.0F, 0.0F},
    {"Wall", still, "stone.tga", 0.0F, world, 0.0F, 0.8F, 0.0F},
    {"Crate", loose, "crate.tga", -0.3F, bounds, 2.0F, 0.6F, 0.0F},
    {"Body", loose, "rock.tga", -0.3F, bounds, 1.0F, 0.6F, 0.1F},
    {"Mesh", mesh, "rock.tga", 0.1F, world, 0.0F, 0.0F, 0.0F},
    {"Trigger", sensor, invisible, 0.0F, bounds, 0.0F, 0.5F, 0.0F},
    {"Forcefield", forcefield, invisible, 0.0F, bounds, 0.0F, 0.5F, 0.0F},
    {"Water", water, "water.tga", -0.2F, mixed, 0.0F, 0.5F, 0.0F},
    {"Marker", marker, invisible, 0.0F, bounds, 0.0F, 0.5F, 0.0F},
    {"Light", light, "light1.tga", 0.0F, bounds, 0.0F, 0.5F, 0.0F},
    {"Emitter", emitter, "particle8.tga", 0.8F, bounds, 0.0F, 0.5F, 0.0F},
    {"Rope", rope, "liana.tga", -0.35F, bounds, 2.0F, 0.0F, 0.0F},
    {"Monster", monster, monsterLook::texture, monsterLook::depth, bounds, monsterLook::mass,
     monsterLook::friction, monsterLook::bounce},
    {"Way", way, invisible, 0.0F, bounds, 0.0F, 0.0F, 0.0F},
    {"Hinge", hinge, invisible, 0.0F, bounds, 0.0F, 0.0F, 0.0F},
    {"Slider", slider, invisible, 0.0F, bounds, 0.0F, 0.0F, 0.0F},
});

bool isSeen(Role role) {
    return role == scenery || role == still || role == loose || role == mesh || role == rope;
}

/// What is drawn to be touched keeps light off; areas that are only felt do not.
bool blocksLight(Role role) {
    return isSeen(role) && role != scenery;
}

Colour standardColour(Role role) {
    Colour colour;
    if (role == water) {
        colour = {0.40F, 0.62F, 0.66F, 0.82F};
    } else if (!isSeen(role)) {
        colour.a = 0.0F;
    }
    return colour;
}

float atLeastNought(const Properties& properties, const char* name, float fallback) {
    const float value = properties.number(name, fallback);
    if (value < 0.0F) {
        throw std::string("property \"") + name + "\" must not be below 0";
    }
    return value;
}

unsigned count(const Properties& properties, const char* name, int fallback) {
    const int value = properties.integer(name, fallback);
    if (value < 1) {
        throw std::string("property \"") + name + "\" must be at least 1";
    }
    return static_cast<unsigned>(value);
}

std::optional<SpriteSheet> readSheet(const Properties& properties) {
    if (properties.integer("sheetColumns", 0) == 0) {
        return std::nullopt;
    }
    SpriteSheet sheet;
    sheet.columns = count(properties, "sheetColumns", 1);
    sheet.rows = count(properties, "sheetRows", static_cast<int>(sheet.columns));
    sheet.delay = count(properties, "sheetDelay", 4);
    sheet.oneShot = properties.flag("sheetOnce", false);
    return sheet;
}

} // namespace

std::span<const ObjectClass> objectClasses() {
    return classTable;
}

const ObjectClass* findObjectClass(const std::string& name) {
    const auto found =
        std::ranges::find_if(classTable, [&](const ObjectClass& row) { return row.name == name; });
    return found == classTable.end() ? nullptr : &*found;
}

std::string textureOf(const Properties& properties, const ObjectClass& objectClass) {
    std::string texture = properties.text("texture", objectClass.texture);
    if (texture.find(' ') != std::string::npos) {
        throw std::string("property \"texture\" must not hold blanks");
    }
    return texture == "none" ? std::string() : texture;
}

Appearance readAppearance(const TiledObject& object, const ObjectClass& objectClass) {
    const Properties& properties = object.properties;
    Appearance look;
    if (isPlace(objectClass.role)) {
        look.texture = invisible;
        look.colour.a = 0.0F;
        look.z = objectClass.z;
        look.texcoordMode = objectClass.texcoordMode;
        look.castsShadow = false;
        return look;
    }
    look.texture = textureOf(properties, objectClass);
    look.colour = properties.colour("colour", standardColour(objectClass.role));
    look.colour.a *= object.opacity;
    look.z = properties.number("z", objectClass.z);
    look.parallax = properties.number("parallax", object.parallax);
    const int mode = properties.integer("texcoordMode", static_cast<int>(objectClass.texcoordMode));
    if (mode < 0 || mode > 2) {
        throw std::string("property \"texcoordMode\" must be 0, 1 or 2");
    }
    look.texcoordMode = static_cast<TexcoordMode>(mode);
    look.castsShadow = properties.flag("castsShadow", blocksLight(objectClass.role));
    look.sheet = readSheet(properties);
    return look;
}

Body readBody(const Properties& properties, const ObjectClass& objectClass) {
    Body body;
    if (objectClass.role == loose || objectClass.role == rope) {
        body.mass = atLeastNought(properties, "mass", objectClass.mass);
        if (body.mass == 0.0F) {
            throw std::string("a loose body needs a mass above 0");
        }
        body.velocity = {properties.number("velocityX", 0.0F),
                         properties.number("velocityY", 0.0F)};
    }
    body.friction = atLeastNought(properties, "friction", objectClass.friction);
    body.restitution = atLeastNought(properties, "restitution", objectClass.restitution);
    const bool passable =
        objectClass.role == sensor || objectClass.role == forcefield || objectClass.role == water;
    body.answersContact = properties.flag("collides", !passable);
    body.kind = properties.integer("kind", isPlace(objectClass.role) ? 0 : 1);
    if (body.kind < 0 || body.kind > 4) {
        throw std::string("property \"kind\" must be 0 to 4");
    }
    body.waterFactor = properties.number("waterFactor", body.waterFactor);
    return body;
}

} // namespace mapc
