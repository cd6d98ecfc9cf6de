#include "MapChecker.h"

#include "AdditionFormat.h"
#include "LevelWriter.h"
#include "OverlapCheck.h"
#include "TextStream.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace mapc {

namespace {

constexpr const char* startName = "STARTPOS";
constexpr float deepest = 900.0F;       ///< The interface begins there, the view ends soon after.
constexpr float litSliceBottom = -2.0F; ///< From here to `litSliceTop` the light map darkens.
constexpr float litSliceTop = 1.0F;
constexpr float thinnestWall = 40.0F; ///< Small fast bodies pass through less within a step.

void report(const LevelObject& object, std::string reason, std::vector<Problem>& problems) {
    problems.push_back({object.id, object.name, std::move(reason)});
}

/// Calls the action with each field of each link of the object's scripts.
template <class Action>
void forEachField(const LevelObject& object, Action action) {
    for (const std::string& script : object.scripts) {
        const std::string stored = storeScript(script);
        TextReader stream(stored);
        visitAddition(stream, {[](const AdditionFormat&) {}, action});
    }
}

void checkScripts(const Level& level, const CommandTest& isCommand,
                  std::vector<Problem>& problems) {
    std::set<std::string> names;
    for (const LevelObject& object : level.objects) {
        names.insert(object.name);
        forEachField(object, [&](const AdditionField& field, const std::string& value) {
            if (field.kind == FieldKind::counted && field.role == FieldRole::plain) {
                names.insert(value); // a NAME in a script
            }
        });
    }
    for (const LevelObject& object : level.objects) {
        forEachField(object, [&](const AdditionField& field, const std::string& value) {
            if (field.role == FieldRole::command && !isCommand(value)) {
                report(object,
                       value.empty() ? std::string("script has two blanks in a row")
                                     : "script has the unknown word \"" + value + "\"",
                       problems);
            } else if (field.role == FieldRole::object && !names.contains(value)) {
                report(object, "script speaks of \"" + value + "\", and no object has that name",
                       problems);
            }
        });
    }
}

void checkStart(const Level& level, std::vector<Problem>& problems) {
    if (std::ranges::find(level.objects, startName, &LevelObject::name) == level.objects.end()) {
        problems.push_back({0, "", std::string("has no object named ") + startName});
    }
}

void checkDepth(const LevelObject& object, const Part& part, std::vector<Problem>& problems) {
    const Appearance& look = part.look;
    const bool lit = look.z >= litSliceBottom && look.z <= litSliceTop;
    if (look.z < -deepest || look.z > deepest) {
        report(object, "z is beyond -900 to 900", problems);
    } else if (look.parallax != 1.0F && part.solid) {
        report(object, "is a body and needs a parallax of 1", problems);
    } else if (look.parallax != 1.0F && lit) {
        report(object, "has a parallax in the lit slice: z must be below -2 or above 1", problems);
    } else if (look.parallax > 1.0F && look.z < litSliceBottom) {
        report(object, "lies behind and needs a parallax of at most 1", problems);
    } else if (look.parallax < 1.0F && look.z > litSliceTop) {
        report(object, "lies in front and needs a parallax of at least 1", problems);
    } else if (look.sheet.has_value() && look.sheet->columns != look.sheet->rows) {
        // The engine steps back over a sheet by rows and columns exchanged.
        report(object, "a sprite sheet needs as many rows as columns", problems);
    }
}

void checkThickness(const LevelObject& object, const Part& part, std::vector<Problem>& problems) {
    const bool wall = part.solid && object.body->mass == 0.0F && object.body->answersContact &&
                      object.body->kind != 0;
    const float across = part.shape.kind == ShapeKind::disc ? 2.0F * part.shape.radius
                                                            : thickness(part.shape.outline);
    if (wall && across < thinnestWall - 0.5F) {
        report(object, "is a wall thinner than 40 units, which fast bodies pass through", problems);
    }
}

} // namespace

void checkLevel(const Level& level, const CommandTest& isCommand, std::vector<Problem>& problems) {
    checkScripts(level, isCommand, problems);
    checkStart(level, problems);
    for (const LevelObject& object : level.objects) {
        for (const Part& part : object.parts) {
            checkDepth(object, part, problems);
            if (object.body.has_value()) {
                checkThickness(object, part, problems);
            }
        }
    }
    checkOverlaps(level, problems);
}

void checkTextures(const Level& level, const TextureSizes& textures,
                   std::vector<Problem>& problems) {
    for (const LevelObject& object : level.objects) {
        for (const Part& part : object.parts) {
            if (!part.look.texture.empty() && !textures.exists(part.look.texture)) {
                report(object, "texture \"" + part.look.texture + "\" does not exist", problems);
            }
        }
    }
}

void checkSounds(const Level& level, const std::string& directory, std::vector<Problem>& problems) {
    for (const LevelObject& object : level.objects) {
        forEachField(object, [&](const AdditionField& field, const std::string& value) {
            std::error_code ignored;
            if (field.role == FieldRole::sound &&
                !std::filesystem::is_regular_file(std::filesystem::path(directory) / value,
                                                  ignored)) {
                report(object, "sound \"" + value + "\" does not exist", problems);
            }
        });
    }
}

} // namespace mapc
