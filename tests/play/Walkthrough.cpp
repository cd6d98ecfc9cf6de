#include "Walkthrough.h"

#include "GameDriver.h"

#include "ProcessValues.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Progress.h"
#include "graphicsModule/GraphicsObject.h"
#include "inputModule/GameInput.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/ObjectNameAdd.h"

#include <fstream>
#include <sstream>

namespace {

using Words = std::vector<std::string>;

Words splitWords(const std::string& line) {
    std::istringstream stream(line);
    Words words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

int number(const std::string& word) {
    std::size_t used = 0;
    const int value = std::stoi(word, &used);
    if (used != word.size()) {
        throw std::invalid_argument(word);
    }
    return value;
}

/// Takes the words of a condition from place `at` on, with its "within".
Condition parseCondition(const Words& words, std::size_t at, int& limit) {
    Condition condition;
    std::size_t end = words.size();
    if (end >= at + 2 && words[end - 2] == "within") {
        limit = number(words[end - 1]);
        end -= 2;
    }
    const Words rest(words.begin() + static_cast<std::ptrdiff_t>(at),
                     words.begin() + static_cast<std::ptrdiff_t>(end));
    if (rest.size() == 1 && rest[0] == "standing") {
        condition.kind = Condition::Kind::standing;
    } else if (rest.size() == 1 && rest[0] == "speaking") {
        condition.kind = Condition::Kind::speaking;
    } else if (rest.size() == 1 && rest[0] == "free") {
        condition.kind = Condition::Kind::free;
    } else if (rest.size() == 1 && rest[0] == "finished") {
        condition.kind = Condition::Kind::finished;
    } else if (rest.size() == 2 && rest[1] == "faded") {
        condition.kind = Condition::Kind::faded;
        condition.name = rest[0];
    } else if (rest.size() == 2 && rest[0] == "touching") {
        condition.kind = Condition::Kind::touching;
        condition.name = rest[1];
    } else if (rest.size() == 2 && rest[0] == "on") {
        condition.kind = Condition::Kind::on;
        condition.name = rest[1];
    } else if (rest.size() == 2 && rest[0] == "holding") {
        condition.kind = Condition::Kind::holding;
        condition.name = rest[1];
    } else if (rest.size() == 2 && rest[1] == "gone") {
        condition.kind = Condition::Kind::gone;
        condition.name = rest[0];
    } else if (rest.size() == 3 || rest.size() == 4) {
        const std::size_t first = rest.size() - 3;
        condition.kind = Condition::Kind::coordinate;
        condition.name = first == 1 ? rest[0] : "";
        condition.axis = rest[first].at(0);
        condition.above = rest[first + 1] == "above";
        condition.value = static_cast<float>(number(rest[first + 2]));
        if ((condition.axis != 'x' && condition.axis != 'y') ||
            (!condition.above && rest[first + 1] != "below")) {
            throw std::invalid_argument("condition");
        }
    } else {
        throw std::invalid_argument("condition");
    }
    return condition;
}

void parseDuration(const Words& words, std::size_t at, Direction& direction) {
    if (words.at(at) == "until") {
        direction.untilCondition = true;
        direction.condition = parseCondition(words, at + 1, direction.limit);
    } else {
        direction.steps = number(words.at(at));
    }
}

/// "X Y" or "at NAME" from place 1 on.
void parseAim(const Words& words, Direction& direction) {
    if (words.at(1) == "at") {
        direction.name = words.at(2);
    } else {
        direction.x = static_cast<float>(number(words.at(1)));
        direction.y = static_cast<float>(number(words.at(2)));
    }
}

/// What is done with the hands. False for any other verb.
bool parseHands(const Words& words, Direction& direction) {
    const std::string& verb = words[0];
    if (verb == "aim" || verb == "throw") {
        direction.verb = verb == "aim" ? Direction::Verb::aim : Direction::Verb::toss;
        parseAim(words, direction);
    } else if (verb == "grab") {
        direction.verb = Direction::Verb::grab;
        const bool named = words.size() == 2 || words.size() == 4;
        direction.name = named ? words[1] : "";
        if (words.size() > 2) {
            direction.limit = number(words.back());
        }
    } else if (verb == "drop") {
        direction.verb = Direction::Verb::drop;
    } else if (verb == "climb") {
        direction.verb = Direction::Verb::climb;
        direction.name = words.at(1);
        parseDuration(words, 2, direction);
        if (!direction.untilCondition) {
            throw std::invalid_argument(verb);
        }
    } else {
        return false;
    }
    return true;
}

Direction parseDirection(const std::string& text, int line) {
    const Words words = splitWords(text);
    Direction direction;
    direction.line = line;
    direction.text = text;
    const std::string& verb = words.at(0);
    if (verb == "hold" || verb == "release" || verb == "press") {
        direction.verb = verb == "hold"      ? Direction::Verb::hold
                         : verb == "release" ? Direction::Verb::release
                                             : Direction::Verb::press;
        direction.key = words.at(1);
    } else if (verb == "walk") {
        direction.verb = Direction::Verb::walk;
        direction.key = words.at(1);
        parseDuration(words, 2, direction);
    } else if (verb == "jump") {
        direction.verb = Direction::Verb::jump;
        direction.key = "up";
        direction.steps = number(words.at(1));
    } else if (verb == "wait") {
        direction.verb = Direction::Verb::wait;
        parseDuration(words, 1, direction);
    } else if (verb == "expect") {
        direction.verb = Direction::Verb::expect;
        direction.condition = parseCondition(words, 1, direction.limit);
    } else if (verb == "reload") {
        direction.verb = Direction::Verb::reload;
    } else if (!parseHands(words, direction)) {
        throw std::invalid_argument(verb);
    }
    return direction;
}

/// Steps until the condition holds.
/// @throws std::string if it does not within the direction's limit
template <class Test, class Step>
void stepUntil(const Test& holds, const Direction& direction, const Step& step) {
    for (int steps = 0; !holds(); ++steps) {
        if (steps == direction.limit) {
            throw "not so after " + std::to_string(direction.limit) + " steps";
        }
        step();
    }
}

bool hasName(const SceneObject& object, const std::string& name) {
    const auto* addition =
        static_cast<const ObjectNameAdd*>(object.findAddition(AdditionType::objectName));
    return addition != nullptr && addition->getName() == name;
}

/// Whether nothing is seen of the object any more.
bool isFaded(const SceneObject* object) {
    float ignored = 0.0F;
    float alpha = 1.0F;
    if (object != nullptr && object->graphicsObject != nullptr) {
        object->graphicsObject->getColour(ignored, ignored, ignored, alpha);
    }
    return alpha <= 0.0F;
}

void aim(const Direction& direction, GameDriver& game) {
    if (direction.name.empty()) {
        game.aim(direction.x, direction.y);
    } else {
        game.aimAt(direction.name);
    }
}

void toss(const Direction& direction, GameDriver& game) {
    constexpr int followSteps = 30; // in which what is held swings to where the aim wants it
    if (game.held() == nullptr) {
        throw std::string("nothing is in hand");
    }
    aim(direction, game);
    for (int i = 0; i < followSteps; ++i) {
        game.step();
    }
    game.hold("mouse2", true);
    game.step();
    game.hold("mouse2", false);
    if (game.held() != nullptr) {
        throw std::string("it is still in hand");
    }
    game.hold("mouse", false);
    game.step();
}

/// From the character to the nearest part of the liana.
btVector3 wayTo(const std::string& liana, const btVector3& from) {
    btVector3 nearest(BT_LARGE_FLOAT, 0.0F, 0.0F);
    for (const SceneObject* object : sceneManager().objects) {
        const btVector3 way = GameDriver::placeOf(*object) - from;
        if (way.length2() < nearest.length2() && hasName(*object, liana)) {
            nearest = way;
        }
    }
    return nearest;
}

/// Leaps on as soon as the hands have found the liana again, and keeps touching it without a push
/// that would set it swinging.
void climb(const Direction& direction, GameDriver& game) {
    constexpr float touch = 18.0F; // from the middle of the character to that of a liana
    constexpr float near = 60.0F;  // where the hands reach out; other things may lie about
    const auto arrived = [&] { return game.held() != nullptr && direction.condition.holds(game); };
    game.hold("up", true);
    stepUntil(arrived, direction, [&] {
        if (game.player() == nullptr) {
            throw std::string("nobody climbs");
        }
        const btVector3 way = wayTo(direction.name, GameDriver::placeOf(*game.player()));
        game.hold("mouse", way.length() < near);
        game.hold("left", way.x() < -touch);
        game.hold("right", way.x() > touch);
        game.step();
    });
    for (const char* key : {"up", "left", "right"}) {
        game.hold(key, false);
    }
}

} // namespace

bool Condition::holds(const GameDriver& game) const {
    Player* player = game.player();
    if (kind == Kind::gone) {
        return sceneManager().getSceneObject(name) == nullptr;
    }
    if (kind == Kind::finished) {
        return levelRunning == 0 && readProgress().any();
    }
    if (player == nullptr) {
        return false;
    }
    switch (kind) {
    case Kind::free:
        return movementLocked == 0 && physicsRunning != 0;
    case Kind::standing:
        return player->supportNow != nullptr;
    case Kind::speaking:
        return player->isSpeaking();
    case Kind::faded:
        return isFaded(sceneManager().getSceneObject(name));
    case Kind::touching:
        return player->touchesObject(name);
    case Kind::holding:
        return game.held() != nullptr && hasName(*game.held(), name);
    case Kind::on:
        return player->supportNow != nullptr && hasName(*player->supportNow, name);
    default:
        break;
    }
    const SceneObject* object = name.empty() ? player : sceneManager().getSceneObject(name);
    if (object == nullptr) {
        return false;
    }
    const btVector3 place = GameDriver::placeOf(*object);
    const float coordinate = axis == 'x' ? place.x() : place.y();
    return above ? coordinate > value : coordinate < value;
}

Walkthrough::Walkthrough(const std::string& file) : path(file) {
    std::ifstream stream(file);
    if (!stream) {
        throw file + " - no such file or directory";
    }
    int line = 0;
    for (std::string text; std::getline(stream, text);) {
        ++line;
        const Words words = splitWords(text);
        if (words.empty() || words[0].front() == '#') {
            continue;
        }
        try {
            directions.push_back(parseDirection(text, line));
        } catch (const std::exception&) {
            throw file + ":" + std::to_string(line) + ": not a direction: " + text;
        }
    }
}

void Walkthrough::play(GameDriver& game) const {
    for (const Direction& direction : directions) {
        try {
            follow(direction, game);
        } catch (const std::string& reason) {
            throw path + ":" + std::to_string(direction.line) + ": " + direction.text + ": " +
                reason + ", " + game.describePlace();
        }
    }
}

void Walkthrough::follow(const Direction& direction, GameDriver& game) const {
    switch (direction.verb) {
    case Direction::Verb::hold:
        game.hold(direction.key, true);
        return;
    case Direction::Verb::release:
        game.hold(direction.key, false);
        return;
    case Direction::Verb::press:
        game.hold(direction.key, true);
        game.step();
        game.step();
        game.hold(direction.key, false);
        game.step();
        return;
    case Direction::Verb::aim:
    case Direction::Verb::grab:
    case Direction::Verb::drop:
    case Direction::Verb::toss:
    case Direction::Verb::climb:
        followHands(direction, game);
        return;
    case Direction::Verb::reload:
        game.reload();
        return;
    case Direction::Verb::expect:
        if (!direction.condition.holds(game)) {
            throw std::string("is not so");
        }
        return;
    default:
        break;
    }

    if (!direction.key.empty()) {
        game.hold(direction.key, true);
    }
    if (direction.untilCondition) {
        stepUntil([&] { return direction.condition.holds(game); }, direction,
                  [&game] { game.step(); });
    } else {
        for (int i = 0; i < direction.steps; ++i) {
            game.step();
        }
    }
    if (!direction.key.empty()) {
        game.hold(direction.key, false);
    }
}

void Walkthrough::followHands(const Direction& direction, GameDriver& game) {
    switch (direction.verb) {
    case Direction::Verb::grab:
        game.hold("mouse", true);
        stepUntil(
            [&] {
                return game.held() != nullptr &&
                       (direction.name.empty() || hasName(*game.held(), direction.name));
            },
            direction, [&game] { game.step(); });
        return;
    case Direction::Verb::drop:
        game.hold("mouse", false);
        game.step();
        return;
    case Direction::Verb::toss:
        toss(direction, game);
        return;
    case Direction::Verb::climb:
        climb(direction, game);
        return;
    default:
        aim(direction, game);
    }
}
