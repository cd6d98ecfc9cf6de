#include "LevelBuilder.h"

#include "EmitterRecord.h"
#include "JointBuilder.h"
#include "LightRecord.h"
#include "MonsterRecord.h"
#include "ObjectAdditions.h"
#include "ObjectClass.h"
#include "RopeBuilder.h"
#include "ShapeBuilder.h"

#include <algorithm>
#include <cmath>

namespace mapc {

namespace {

constexpr float markerHalf = 5.0F;
constexpr const char* bearerProperty = "on"; // the object that a light or an emitter hangs on
constexpr float narrowestWater = 20.0F;

/// What makes several objects one: a property, or a layer of class Compound around them.
std::string groupOf(const TiledObject& object) {
    if (object.properties.has("group")) {
        return "property " + object.properties.text("group", "");
    }
    return object.compoundLayer == 0 ? "" : "layer " + std::to_string(object.compoundLayer);
}

/// Whether the object only adds to others, which must all be built before.
bool isAttached(const TiledObject& object, Role role) {
    return role == Role::rope || role == Role::hinge || role == Role::slider ||
           ((role == Role::light || role == Role::emitter) &&
            (object.properties.integer(bearerProperty, 0) != 0 || !groupOf(object).empty()));
}

void checkWater(const TiledObject& object, const Part& part, const std::string& group) {
    if (part.shape.kind != ShapeKind::box || object.rotation != 0.0F) {
        throw std::string("a Water is a rectangle that is not turned");
    }
    if (!group.empty()) {
        throw std::string("a Water cannot be part of a group");
    }
    if (part.shape.half.x <= narrowestWater * 0.5F) {
        throw std::string("a Water must be wider than 20 units, to have three columns");
    }
}

class Builder {
public:
    Builder(const TiledMap& source, std::vector<Problem>& list)
        : map(source),
          problems(list),
          placement(source.origin) {}

    Level build() {
        readEnvironment();
        forEach([this](const TiledObject& object, const ObjectClass& objectClass) {
            if (!isAttached(object, objectClass.role)) {
                addObject(object, objectClass);
            }
        });
        std::ranges::for_each(level.objects, centreCompound);
        forEach([this](const TiledObject& object, const ObjectClass& objectClass) {
            if (objectClass.role == Role::rope) {
                addRope(object, objectClass, placement, level);
            }
        });
        JointBuilder joints(level, partOwners, placement);
        forEach([&](const TiledObject& object, const ObjectClass& objectClass) {
            if (objectClass.role == Role::hinge) {
                joints.addHinge(object);
            } else if (objectClass.role == Role::slider) {
                joints.addSlider(object);
            } else if (objectClass.role == Role::light) {
                addLight(object, objectClass);
            } else if (objectClass.role == Role::emitter) {
                bearerOf(object).emitters.push_back(readEmitter(object, objectClass));
            }
        });
        return std::move(level);
    }

private:
    template <class Action>
    void forEach(Action action) {
        for (const TiledObject& object : map.objects) {
            const ObjectClass* objectClass = findObjectClass(object.objectClass);
            if (objectClass == nullptr) {
                continue; // told once, by the first pass
            }
            try {
                action(object, *objectClass);
            } catch (const std::string& reason) {
                problems.push_back({object.id, object.name, reason});
            }
        }
    }

    void readEnvironment() {
        try {
            level.ambient = map.properties.colour("ambient", {});
            level.music = map.properties.text("music", "");
        } catch (const std::string& reason) {
            problems.push_back({0, "", reason});
        }
        for (const TiledObject& object : map.objects) {
            if (findObjectClass(object.objectClass) == nullptr) {
                problems.push_back({object.id, object.name,
                                    object.objectClass.empty()
                                        ? std::string("has no class")
                                        : "has the unknown class \"" + object.objectClass + "\""});
            }
        }
    }

    void addObject(const TiledObject& object, const ObjectClass& objectClass) {
        if (objectClass.role == Role::way) {
            readWay(object, placement); // complains; the monsters on it read it for themselves
        } else if (objectClass.role == Role::monster) {
            addMonster(object, objectClass);
        } else {
            addShape(object, objectClass);
        }
    }

    void addMonster(const TiledObject& source, const ObjectClass& objectClass) {
        if (!groupOf(source).empty()) {
            throw std::string("a Monster cannot be part of a group");
        }
        LevelObject monster = readMonster(source, objectClass, placement, map);
        partOwners[source.id] = level.objects.size();
        level.objects.push_back(std::move(monster));
    }

    void addShape(const TiledObject& object, const ObjectClass& objectClass) {
        const Part part = buildPart(object, objectClass);
        const std::string group = groupOf(object);
        if (objectClass.role == Role::water) {
            checkWater(object, part, group);
        }
        const auto [entry, isNew] = groups.try_emplace(group, level.objects.size());
        if (!group.empty() && !isNew) {
            LevelObject& compound = level.objects[entry->second];
            if (part.solid && !compound.body.has_value()) {
                throw std::string(
                    "the group begins with scenery: its first object says what it is");
            }
            compound.parts.push_back(part);
            partOwners[object.id] = entry->second;
            return;
        }
        partOwners[object.id] = level.objects.size();
        level.objects.push_back(buildObject(object, objectClass, part));
    }

    void addLight(const TiledObject& source, const ObjectClass& objectClass) {
        LevelObject& bearer = bearerOf(source);
        if (bearer.id != source.id && source.rotation != 0.0F) {
            throw std::string("a light on an object turns with it and not by itself");
        }
        Light light = readLight(source, objectClass);
        light.place = bearer.pose.toLocal(placement.centreOf(source));
        bearer.lights.push_back(std::move(light));
    }

    /// What a light or an emitter belongs to: the object that it names, its group, or an object of
    /// its own.
    LevelObject& bearerOf(const TiledObject& source) {
        const int named = source.properties.integer(bearerProperty, 0);
        const auto owner = partOwners.find(named == 0 ? source.id : named);
        if (named == 0 && owner == partOwners.end()) {
            const auto group = groups.find(groupOf(source));
            if (group == groups.end() || !level.objects[group->second].body.has_value()) {
                throw std::string("the group has no body to carry it");
            }
            return level.objects[group->second];
        }
        const std::string which = "property \"" + std::string(bearerProperty) +
                                  "\" refers to object " + std::to_string(named);
        if (owner == partOwners.end()) {
            throw which + ", which is not in the level";
        }
        if (!level.objects[owner->second].body.has_value()) {
            throw which + ", which has no body to carry anything";
        }
        return level.objects[owner->second];
    }

    Part buildPart(const TiledObject& object, const ObjectClass& objectClass) const {
        Part part;
        part.id = object.id;
        part.look = readAppearance(object, objectClass);
        part.solid = objectClass.role != Role::scenery && objectClass.role != Role::mesh;
        const bool isArea = objectClass.role == Role::emitter && object.width > 0.0F;
        if (isPlace(objectClass.role) && !isArea) {
            part.shape = {ShapeKind::box,
                          {{-markerHalf, -markerHalf},
                           {-markerHalf, markerHalf},
                           {markerHalf, markerHalf},
                           {markerHalf, -markerHalf}},
                          0.0F,
                          {markerHalf, markerHalf}};
            part.pose = {placement.centreOf(object), placement.frameOf(object).angle};
            return part;
        }
        const PlacedShape placed = buildShape(object, placement, objectClass.role == Role::mesh);
        part.shape = placed.shape;
        part.pose = placed.pose;
        return part;
    }

    static LevelObject buildObject(const TiledObject& source, const ObjectClass& objectClass,
                                   const Part& part) {
        const Properties& properties = source.properties;
        LevelObject object;
        object.id = source.id;
        object.pose = part.pose;
        object.parts.push_back(part);
        if (part.solid) {
            object.name = source.name; // names of scenery are for the editor alone
            object.body = readBody(properties, objectClass);
        }
        if (objectClass.role == Role::forcefield) {
            object.force =
                Point{properties.number("forceX", 0.0F), properties.number("forceY", 0.0F)};
        }
        if (objectClass.role == Role::water) {
            object.water = properties.flag("still", false) ? Surface::still : Surface::waves;
        }
        readAdditions(properties, object);
        return object;
    }

    /// Puts the frame of a compound on its centre of mass, which is what Bullet takes it for.
    static void centreCompound(LevelObject& object) {
        if (object.parts.size() < 2) {
            return;
        }
        Point sum;
        float weight = 0.0F;
        for (const Part& part : object.parts) {
            if (part.solid || !object.body.has_value()) {
                const float area = std::abs(signedArea(part.shape.outline));
                sum = sum + part.pose.origin * area;
                weight += area;
            }
        }
        object.pose = {weight > 0.0F ? sum * (1.0F / weight) : object.pose.origin, 0.0F};
    }

    const TiledMap& map;
    std::vector<Problem>& problems;
    Placement placement;
    Level level;
    std::map<std::string, std::size_t> groups; // place in the level's objects
    PartOwners partOwners;
};

} // namespace

Level buildLevel(const TiledMap& map, std::vector<Problem>& problems) {
    return Builder(map, problems).build();
}

} // namespace mapc
