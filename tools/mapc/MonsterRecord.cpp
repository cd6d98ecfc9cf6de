#include "MonsterRecord.h"

#include "LevelWriter.h"
#include "ObjectAdditions.h"
#include "ObjectClass.h"
#include "ShapeBuilder.h"

#include "TextStream.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/MonsterParts.h"

#include <algorithm>
#include <array>
#include <limits>

namespace mapc {

namespace {

// A way lies on the floor, and the body's centre a radius above it. Half of that keeps the goal
// below the centre, or the monster would jump for it, and near enough to be reached.
constexpr float wayLift = monsterLook::bodyRadius / 2.0F;

struct StateName {
    const char* name;
    EvilState state;
};

constexpr std::array stateNames{StateName{"hunter", EvilState::hunter},
                                StateName{"patrol", EvilState::patrol},
                                StateName{"puppet", EvilState::puppet}};

int readState(const Properties& properties) {
    const std::string told = properties.text("state", stateNames.front().name);
    const auto found = std::ranges::find_if(
        stateNames, [&told](const StateName& row) { return told == row.name; });
    if (found == stateNames.end()) {
        throw "property \"state\" is \"" + told + "\": it must be hunter, patrol or puppet";
    }
    return static_cast<int>(found->state);
}

float within(const Properties& properties, const char* name, float fallback,
             float most = std::numeric_limits<float>::max()) {
    const float value = properties.number(name, fallback);
    if (value < 0.0F) {
        throw std::string("property \"") + name + "\" must not be below 0";
    }
    if (value > most) {
        throw std::string("property \"") + name + "\" is too large";
    }
    return value;
}

PlayerStatistics readStatistics(const Properties& properties) {
    constexpr float everything = 100.0F; // percent
    PlayerStatistics values;
    values.speed = within(properties, "speed", values.speed);
    values.push = within(properties, "push", values.push);
    values.jump = within(properties, "jump", values.jump);
    values.armor = within(properties, "armor", values.armor, everything);
    values.bite = within(properties, "bite", values.bite);
    if (values.bite == 0.0F) {
        throw std::string("property \"bite\" must be above 0: make a puppet of what does not bite");
    }
    values.health = properties.integer("health", values.health);
    if (values.health < 0) {
        throw std::string("property \"health\" must not be below 0, which is dead");
    }
    return values;
}

std::vector<Point> waypointsOf(const TiledObject& source, const Placement& placement,
                               const TiledMap& map) {
    const int id = source.properties.integer("way", 0);
    if (id == 0) {
        return {};
    }
    const auto way = std::ranges::find(map.objects, id, &TiledObject::id);
    const ObjectClass* wayClass =
        way == map.objects.end() ? nullptr : findObjectClass(way->objectClass);
    if (wayClass == nullptr || wayClass->role != Role::way) {
        throw "property \"way\" refers to object " + std::to_string(id) +
            ", which is no object of class Way";
    }
    return readWay(*way, placement);
}

/// The disc that the monster is to others.
Part discOf(const TiledObject& source, const ObjectClass& objectClass, const Placement& placement) {
    Part part;
    part.id = source.id;
    part.shape.kind = ShapeKind::disc;
    part.shape.radius = monsterLook::bodyRadius;
    part.pose.origin = placement.centreOf(source);
    part.look.texture = monsterLook::texture;
    part.look.z = objectClass.z;
    part.look.parallax = source.properties.number("parallax", source.parallax);
    part.look.texcoordMode = objectClass.texcoordMode;
    part.solid = true;
    return part;
}

Part quadOf(const Part& disc, const monsterLook::Quad& look) {
    Part quad = disc;
    const Point half{look.halfWidth, look.halfHeight};
    quad.shape = {ShapeKind::box,
                  {{-half.x, -half.y}, {-half.x, half.y}, {half.x, half.y}, {half.x, -half.y}},
                  0.0F,
                  half};
    quad.pose = {disc.pose.toWorld({look.x, look.y}), look.turn};
    quad.look.colour = {look.red, 0.0F, 0.0F, 1.0F};
    return quad;
}

} // namespace

std::vector<Point> readWay(const TiledObject& source, const Placement& placement) {
    if (source.shape != TiledShape::polyline && source.shape != TiledShape::polygon) {
        throw std::string("a Way is drawn as a line or a polygon");
    }
    const Pose frame = placement.frameOf(source);
    std::vector<Point> points;
    for (const Point& corner : source.polygon) {
        points.push_back(frame.toWorld({corner.x, -corner.y}) + Point{0.0F, wayLift});
    }
    return points;
}

LevelObject readMonster(const TiledObject& source, const ObjectClass& objectClass,
                        const Placement& placement, const TiledMap& map) {
    if (source.shape != TiledShape::point) {
        throw std::string("a Monster is drawn as a point: all have one size");
    }
    LevelObject object;
    object.id = source.id;
    object.name = source.name;
    object.parts.push_back(discOf(source, objectClass, placement));
    object.pose = object.parts.front().pose;
    Body body;
    body.mass = objectClass.mass;
    body.friction = objectClass.friction;
    body.restitution = objectClass.restitution;
    object.body = body;
    readAdditions(source.properties, object);
    object.health.reset(); // its hit points are those of a character
    object.monster =
        Monster{readStatistics(source.properties), readState(source.properties),
                source.properties.flag("eyesLit", false), waypointsOf(source, placement, map)};
    return object;
}

LevelObject drawnMonster(const LevelObject& object) {
    LevelObject drawn = object;
    drawn.parts.clear();
    for (const monsterLook::Quad& look : monsterLook::quads) {
        drawn.parts.push_back(quadOf(object.parts.front(), look));
    }
    return drawn;
}

std::vector<Light> eyeLights(const Monster& monster) {
    std::vector<Light> lights;
    if (monster.eyesLit) {
        for (const float x : {monsterLook::eyeX, -monsterLook::eyeX}) {
            Light light;
            light.size = monsterLook::eyeHalf;
            light.castsShadows = false;
            light.place = {x, monsterLook::eyeY};
            light.texture = monsterLook::texture;
            lights.push_back(light);
        }
    }
    return lights;
}

std::vector<std::string> monsterAdditions() {
    TextWriter reader;
    reader << static_cast<int>(AdditionType::lightReader);
    return {storeScript(monsterLook::footfall), reader.takeText()};
}

void writeMonster(TextWriter& stream, const Monster& monster) {
    monster.statistics.save(stream);
    stream << monster.eyesLit << monster.state << monster.waypoints.size();
    for (const Point& point : monster.waypoints) {
        stream << point.x << point.y;
    }
    constexpr unsigned firstWaypoint = 0;
    stream << firstWaypoint;
}

} // namespace mapc
