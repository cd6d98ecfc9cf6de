#include "ScriptCheck.h"

#include "AdditionFormat.h"
#include "LevelWriter.h"
#include "TextStream.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/ScriptParser.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <limits>
#include <memory>
#include <set>

namespace mapc {

namespace {

constexpr int fewestSteps = 2; ///< A shorter wait passes its end unseen.
constexpr int loudest = 128;

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

template <class T>
bool isNumber(const std::string& word, T least = std::numeric_limits<T>::lowest(),
              T most = std::numeric_limits<T>::max()) {
    T value{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size() && value >= least &&
           value <= most;
}

/// A keyword with the arguments and options that it took.
using Taken = std::vector<std::string>;

/// What is wrong with the first argument of a keyword; empty if nothing is.
std::string complaintOfArgument(const Taken& taken) {
    const AdditionFormat* format = findFormat(taken[0]);
    const bool hasFields = format != nullptr && !format->fields.empty();
    const FieldKind kind = hasFields ? format->fields.front().kind : FieldKind::flag;
    if (kind == FieldKind::flag) {
        return ""; // state, and no argument
    }
    if (taken.size() == 1) {
        return "needs a word behind it";
    }
    const bool whole = kind == FieldKind::whole || kind == FieldKind::unsignedWhole;
    if (whole && !isNumber<int>(taken[1])) {
        return "needs a whole number";
    }
    if (kind == FieldKind::real && !isNumber<float>(taken[1])) {
        return "needs a number";
    }
    if (taken[0].starts_with("DELAY") && !isNumber<int>(taken[1], fewestSteps)) {
        return "needs at least 2 steps";
    }
    return taken[0] == "SCRATCH" && taken[1] != "NULL" ? "knows only the word NULL" : "";
}

/// The same for what stands behind the first argument.
std::string complaintOfRest(const Taken& taken, bool goesOn) {
    const auto option = std::ranges::find(taken, "-V");
    if (option != taken.end() && option + 1 != taken.end() &&
        !isNumber(*(option + 1), 0, loudest)) {
        return "needs a volume from 0 to 128 behind -V";
    }
    const bool endsChain =
        taken[0] == "NAME" || taken[0] == "LOOKAT" || taken[0] == "SCRATCH"; // fire nothing
    return endsChain && (goesOn || taken.size() > 2) ? "lets nothing behind it run" : "";
}

/// The joint that scripts mean by an object's, the first one that holds it, if that is a Slider.
const SliderJoint* sliderOf(const Level& level, const LevelObject& object) {
    const auto index = static_cast<int>(&object - level.objects.data());
    const auto joint = std::ranges::find_if(level.joints, [index](const Joint& candidate) {
        return std::visit(
            [index](const auto& sides) { return sides.a == index || sides.b == index; }, candidate);
    });
    return joint == level.joints.end() ? nullptr : std::get_if<SliderJoint>(&*joint);
}

/// What is missing for the keyword to have an effect; empty if nothing is.
std::string complaintOfJoint(const Taken& taken, const LevelObject& owner, const Level& level) {
    if (taken[0] == "SQUEAK" && sliderOf(level, owner) == nullptr) {
        return "needs a Slider as the object's first joint";
    }
    const auto target = taken[0] == "REVERSE"
                            ? std::ranges::find(level.objects, taken[1], &LevelObject::name)
                            : level.objects.end();
    if (target == level.objects.end()) {
        return "";
    }
    const SliderJoint* slider = sliderOf(level, *target);
    return slider == nullptr || !slider->motorSpeed.has_value()
               ? "needs a Slider with a speed as the first joint of \"" + taken[1] + "\""
               : "";
}

/// The words that stand in front of the first list and no longer in the second.
Taken takenBetween(ScriptWords before, const ScriptWords& after) {
    Taken taken;
    while (before != after) {
        taken.emplace_back(before.take());
    }
    return taken;
}

/// Has the game's own keywords take the script apart, and looks at what each of them took.
void checkArguments(const Level& level, const LevelObject& object, const std::string& script,
                    std::vector<Problem>& problems) {
    const auto keywords = keywordTable();
    ScriptWords rest(script);
    while (!rest.empty()) {
        const auto keyword = std::ranges::find(keywords, rest.front(), &Keyword::word);
        if (keyword == keywords.end()) {
            rest.take();
            continue;
        }
        const ScriptWords before = rest;
        const std::unique_ptr<CallbackAdd> link(keyword->make(rest));
        const Taken taken = takenBetween(before, rest);
        std::string complaint = complaintOfArgument(taken);
        if (complaint.empty()) {
            complaint = complaintOfRest(taken, !rest.empty());
        }
        if (complaint.empty()) {
            complaint = complaintOfJoint(taken, object, level);
        }
        if (!complaint.empty()) {
            report(object, "script has " + taken[0] + ", which " + complaint, problems);
        }
    }
}

std::string complaintOfCommand(const std::string& word) {
    if (word.empty()) {
        return "script has two blanks in a row";
    }
    if (word == "-P" || word == "-V") {
        return "script has a " + word + " that is no option there: -P counts behind -V and its " +
               "volume, or with more words to follow";
    }
    return "script has the unknown word \"" + word + "\"";
}

/// All that a script can speak of.
std::set<std::string> namesIn(const Level& level) {
    std::set<std::string> names;
    for (const LevelObject& object : level.objects) {
        names.insert(object.name);
        forEachField(object, [&](const AdditionField& field, const std::string& value) {
            if (field.kind == FieldKind::counted && field.role == FieldRole::plain) {
                names.insert(value); // a NAME in a script
            }
        });
    }
    return names;
}

} // namespace

void checkScripts(const Level& level, const CommandTest& isCommand,
                  std::vector<Problem>& problems) {
    const std::set<std::string> names = namesIn(level);
    for (const LevelObject& object : level.objects) {
        forEachField(object, [&](const AdditionField& field, const std::string& value) {
            if (field.role == FieldRole::command && !isCommand(value)) {
                report(object, complaintOfCommand(value), problems);
            } else if (field.role == FieldRole::object && !value.empty() &&
                       !names.contains(value)) {
                report(object, "script speaks of \"" + value + "\", and no object has that name",
                       problems);
            }
        });
        for (const std::string& script : object.scripts) {
            checkArguments(level, object, script, problems);
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
