#include "OverlapCheck.h"

#include "ShapeBuilder.h"

#include <algorithm>
#include <set>

namespace mapc {

namespace {

constexpr float allowedDepth = 1.0F;     ///< What the solver settles unseen.
constexpr float characterRadius = 15.0F; ///< The protagonist's body.
constexpr const char* startName = "STARTPOS";

/// A body with the areas that it fills.
struct Filled {
    const LevelObject* object;
    std::size_t index;
    std::vector<ConvexArea> areas;
};

bool meetsOthers(const LevelObject& object) {
    return object.body.has_value() && object.body->answersContact && object.body->kind != 0;
}

/// A dynamic body of kind 2 passes through other loose bodies unless they are of kind 3.
bool passThrough(const Body& a, const Body& b) {
    const bool bothLoose = a.mass > 0.0F && b.mass > 0.0F;
    return bothLoose && ((a.kind == 2 && b.kind != 3) || (b.kind == 2 && a.kind != 3));
}

std::vector<Filled> collect(const Level& level) {
    std::vector<Filled> result;
    for (std::size_t i = 0; i < level.objects.size(); ++i) {
        const LevelObject& object = level.objects[i];
        if (!meetsOthers(object)) {
            continue;
        }
        Filled filled{&object, i, {}};
        for (const Part& part : object.parts) {
            if (part.solid) {
                filled.areas.push_back(areaOf(part.shape, part.pose));
            }
        }
        result.push_back(std::move(filled));
    }
    return result;
}

/// Joined bodies do not meet.
std::set<std::pair<std::size_t, std::size_t>> joinedPairs(const Level& level) {
    std::set<std::pair<std::size_t, std::size_t>> pairs;
    for (const Joint& joint : level.joints) {
        std::visit(
            [&pairs](const auto& sides) {
                const auto a = static_cast<std::size_t>(sides.a);
                const auto b = static_cast<std::size_t>(sides.b);
                pairs.emplace(std::min(a, b), std::max(a, b));
            },
            joint);
    }
    return pairs;
}

float deepestOverlap(const Filled& a, const Filled& b) {
    float depth = 0.0F;
    for (const ConvexArea& first : a.areas) {
        for (const ConvexArea& second : b.areas) {
            depth = std::max(depth, overlapDepth(first, second));
        }
    }
    return depth;
}

std::string nameOf(const LevelObject& object) {
    const std::string id = "object " + std::to_string(object.id);
    return object.name.empty() ? id : id + " \"" + object.name + "\"";
}

void checkStartIsFree(const Level& level, const std::vector<Filled>& bodies,
                      std::vector<Problem>& problems) {
    const auto start = std::ranges::find(level.objects, startName, &LevelObject::name);
    if (start == level.objects.end()) {
        return;
    }
    const Filled character{&*start, 0, {{{start->pose.origin}, characterRadius}}};
    for (const Filled& body : bodies) {
        if (deepestOverlap(character, body) > allowedDepth) {
            problems.push_back(
                {start->id, start->name, "the character would stand in " + nameOf(*body.object)});
        }
    }
}

} // namespace

void checkOverlaps(const Level& level, std::vector<Problem>& problems) {
    const std::vector<Filled> bodies = collect(level);
    const auto joined = joinedPairs(level);
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        for (std::size_t j = i + 1; j < bodies.size(); ++j) {
            const Body& a = *bodies[i].object->body;
            const Body& b = *bodies[j].object->body;
            if ((a.mass == 0.0F && b.mass == 0.0F) || passThrough(a, b) ||
                joined.contains({bodies[i].index, bodies[j].index}) ||
                deepestOverlap(bodies[i], bodies[j]) <= allowedDepth) {
                continue;
            }
            const bool firstIsLoose = a.mass > 0.0F;
            const LevelObject& loose = *bodies[firstIsLoose ? i : j].object;
            const LevelObject& other = *bodies[firstIsLoose ? j : i].object;
            problems.push_back({loose.id, loose.name, "stands in " + nameOf(other) + " at rest"});
        }
    }
    checkStartIsFree(level, bodies, problems);
}

} // namespace mapc
