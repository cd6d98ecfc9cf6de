#include "Timetable.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace {

constexpr int mixedAhead = 4; // steps

/// The steps of the recording in which something may ring.
std::vector<bool> ringing(const Recording& recording, const std::vector<Due>& table,
                          const std::map<std::string, Signal>& sounds) {
    std::vector<bool> rings(static_cast<std::size_t>(recording.steps()));
    for (const Due& due : table) {
        const int length = static_cast<int>(sounds.at(due.file).size() / Recording::stepFrames);
        const int first = std::max(0, due.step - due.slack);
        const int last = std::min(recording.steps(), due.step + due.slack + length + mixedAhead);
        std::fill(rings.begin() + first, rings.begin() + std::max(first, last), true);
    }
    return rings;
}

std::string strayNoise(const Recording& recording, const std::vector<bool>& rings) {
    for (int step = 0; step < recording.steps(); ++step) {
        if (!rings[static_cast<std::size_t>(step)] &&
            recording.peak(step, std::min(step + 3, recording.steps())) > 0.0F) {
            return "something else is heard in step " + std::to_string(step) + "\n";
        }
    }
    return "";
}

} // namespace

std::string complaintsOf(const Recording& recording, const std::vector<Due>& table) {
    std::map<std::string, Signal> sounds;
    for (const Due& due : table) {
        sounds.try_emplace(due.file, builtSound("sound/" + due.file));
    }
    std::string complaints;
    for (const auto& [file, sound] : sounds) {
        std::vector<Heard> heard = recording.find(sound);
        for (const Due& due : table) {
            const auto found = std::find_if(heard.begin(), heard.end(), [&](const Heard& one) {
                return std::abs(one.step - due.step) <= due.slack && one.volume >= due.volume;
            });
            if (due.file == file && found == heard.end()) {
                complaints += file + " is not heard in step " + std::to_string(due.step) + "\n";
            } else if (due.file == file) {
                heard.erase(found);
            }
        }
        for (const Heard& one : heard) {
            complaints += file + " is heard in step " + std::to_string(one.step) + " at volume " +
                          std::to_string(one.volume) + "\n";
        }
    }
    return complaints + strayNoise(recording, ringing(recording, table, sounds));
}
