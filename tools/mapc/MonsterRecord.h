#pragma once

#include "Level.h"

#include <string>
#include <vector>

class TextWriter;

namespace mapc {

class Placement;
struct ObjectClass;

/// The points of an object of class Way, as places that the centre of a monster walks to when the
/// way is drawn along the floor.
/// @throws std::string for a drawing that is no line
std::vector<Point> readWay(const TiledObject& source, const Placement& placement);

/// The monster that a point of the editor stands for. Its look is the engine's. The ways that its
/// property may refer to are among the objects of the map.
/// @throws std::string for a drawing or a value that does not fit
LevelObject readMonster(const TiledObject& source, const ObjectClass& objectClass,
                        const Placement& placement, const TiledMap& map);

/// The object as it is drawn: the engine's quads in the place of the disc that it is.
LevelObject drawnMonster(const LevelObject& object);

/// The lights of its eyes, where they are lit. They belong in front of all other additions.
std::vector<Light> eyeLights(const Monster& monster);

/// What every monster brings behind its own additions, each as the text of its record.
std::vector<std::string> monsterAdditions();

/// The end of its record.
void writeMonster(TextWriter& stream, const Monster& monster);

} // namespace mapc
