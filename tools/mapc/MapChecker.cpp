#include "MapChecker.h"

#include "OverlapCheck.h"

#include <algorithm>
#include <filesystem>

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
        const auto check = [&](const std::string& texture) {
            if (!texture.empty() && !textures.exists(texture)) {
                report(object, "texture \"" + texture + "\" does not exist", problems);
            }
        };
        for (const Part& part : object.parts) {
            check(part.look.texture);
        }
        for (const Light& light : object.lights) {
            check(light.texture);
        }
        for (const Emitter& emitter : object.emitters) {
            check(emitter.texture);
        }
    }
}

void checkMusic(const Level& level, const std::string& directory, std::vector<Problem>& problems) {
    std::error_code ignored;
    if (!level.music.empty() && !std::filesystem::is_regular_file(
                                    std::filesystem::path(directory) / level.music, ignored)) {
        problems.push_back({0, "", "music \"" + level.music + "\" does not exist"});
    }
}

} // namespace mapc
