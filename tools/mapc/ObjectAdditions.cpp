#include "ObjectAdditions.h"

#include <algorithm>
#include <charconv>

namespace mapc {

namespace {

/// The lines of a property, without blank ones and without blanks around them.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        std::string line = text.substr(start, end - start);
        line.erase(line.find_last_not_of(" \t\r") + 1);
        line.erase(0, line.find_first_not_of(" \t"));
        if (!line.empty()) {
            lines.push_back(line);
        }
        start = end + 1;
    }
    return lines;
}

/// The whole number above 0 that the text begins with, or 0. `rest` is what follows it.
int leadingNumber(std::string_view text, std::string_view& rest) {
    int number = 0;
    const auto [behind, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    rest = text.substr(static_cast<std::size_t>(behind - text.data()));
    return error == std::errc() && number > 0 ? number : 0;
}

/// "STEPS TEXT", where the text may be "qq" and the number of a language line.
DialogLine parseDialogLine(const std::string& line) {
    std::string_view said;
    const int steps = leadingNumber(line, said);
    const std::size_t start = said.find_first_not_of(" \t");
    if (steps == 0 || start == 0 || start == std::string_view::npos) {
        throw "dialog has the line \"" + line + "\": it needs steps above 0, a blank and the text";
    }
    said.remove_prefix(start);
    std::string_view rest;
    if (said.starts_with("qq") && (leadingNumber(said.substr(2), rest) == 0 || !rest.empty())) {
        throw "dialog has the line \"" + line + "\": qq needs the number of a language line";
    }
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (!std::ranges::all_of(said, isAscii)) {
        throw "dialog has the line \"" + line +
            "\": letters with marks belong into a language line, said with qq and its number";
    }
    return {std::string(said), steps};
}

std::optional<Dialog> readDialog(const Properties& properties) {
    Dialog dialog;
    std::ranges::transform(linesOf(properties.text("dialog", "")), std::back_inserter(dialog.lines),
                           parseDialogLine);
    dialog.once = properties.flag("dialogOnce", false);
    dialog.locked = properties.flag("dialogLocked", false);
    return dialog.lines.empty() ? std::nullopt : std::optional(dialog);
}

} // namespace

void readAdditions(const Properties& properties, LevelObject& object) {
    object.scripts = linesOf(properties.text("script", ""));
    object.dialog = readDialog(properties);
    if (const int health = properties.integer("health", 0); health != 0) {
        object.health = health;
    }
    if (!object.body.has_value()) {
        if (!object.scripts.empty()) {
            throw std::string("has no body, which a script needs: make it a Trigger or a Wall");
        }
        if (object.dialog.has_value()) {
            throw std::string("has no body, which a dialog needs: make it a Trigger or a Wall");
        }
        return;
    }
    if (const int damage = properties.integer("damage", 0); damage != 0) {
        object.damage = Damage{damage, properties.number("damageThreshold", 0.0F)};
    }
    if (const float power = properties.number("forcePower", 0.0F); power != 0.0F) {
        object.forcePower = power;
    }
}

} // namespace mapc
