#include "tools/sound/Manifest.h"
#include "tools/sound/Measures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <string_view>

namespace {

struct Sound {
    SoundRow row;
    Clip clip;
    Measures measures;

    bool isMusic() const { return row.file.ends_with(".ogg"); }
};

/// What the builder has made, read and measured once for all tests.
const std::vector<Sound>& sounds() {
    static const std::vector<Sound> all = [] {
        std::vector<Sound> read;
        for (const SoundRow& row : readManifest(TOLMERE_CONTENT "/sounds.txt")) {
            bool music = row.file.ends_with(".ogg");
            std::string folder = music ? "/music/" : "/sound/";
            Clip clip = load(TOLMERE_GAME_DIRECTORY + folder + row.file);
            Measures measures = measure(clip);
            read.push_back({row, std::move(clip), measures});
        }
        return read;
    }();
    return all;
}

struct Range {
    std::string_view prefix;
    float least, most; // seconds
};

// How long the game can use a sound for: steps follow each other every third of a second, a breath
// every half, and what a script strikes may ring on.
constexpr Range lengths[] = {
    {"foot", 0.1f, 0.4f},   {"thud", 0.3f, 0.8f}, {"breath", 0.6f, 1.5f}, {"click", 0.05f, 0.2f},
    {"switch", 0.2f, 0.8f}, {"pick", 0.1f, 0.5f}, {"put", 0.1f, 0.5f},    {"uh", 0.2f, 0.6f},
    {"gulp", 0.3f, 1},      {"plum", 0.4f, 1.2f}, {"unplum", 0.3f, 1},    {"zom", 0.8f, 2.5f},
    {"syk", 0.3f, 1.2f},    {"close", 1, 2},      {"chomp", 0.2f, 0.8f},  {"electro", 0.3f, 1.2f},
    {"quake", 6, 12},       {"anxiety", 2, 7},    {"dying", 0.8f, 2},     {"evildie", 1, 3},
};

} // namespace

// The numbered families are chosen from by chance, so a gap would be a silence now and then.
TEST(SoundsTest, EveryFamilyThatIsChosenFromByChanceIsWhole) {
    const std::map<std::string, std::pair<int, int>> families{
        {"breath", {0, 10}}, {"electro", {1, 4}}, {"uh", {0, 2}},      {"dying", {0, 2}},
        {"gulp", {0, 2}},    {"zom", {0, 3}},     {"evildie", {0, 3}}, {"syk", {0, 4}},
        {"plum", {0, 5}},    {"unplum", {0, 5}},  {"anxiety", {1, 8}}, {"foot", {0, 1}}};
    for (const auto& [name, numbers] : families) {
        for (int n = numbers.first; n <= numbers.second; ++n) {
            std::string file = name + std::to_string(n) + ".wav";
            EXPECT_EQ(
                std::ranges::count_if(sounds(), [&](const Sound& s) { return s.row.file == file; }),
                1)
                << file;
        }
    }
}

TEST(SoundsTest, EverySoundHasTheLevelTheEndsAndTheLengthOfItsRole) {
    for (const Sound& s : sounds()) {
        SCOPED_TRACE(s.row.file);
        EXPECT_GT(s.measures.peak, 0.25f); // -12 decibels
        EXPECT_LT(s.measures.peak, 0.89f); // -1
        EXPECT_LT(s.measures.offset, 0.003f);
        EXPECT_GT(s.measures.loudness, 0.01f);
        if (s.row.ending == Ending::once) {
            EXPECT_LT(s.measures.ends, 0.003f);
        } else {
            EXPECT_LE(s.measures.seam, std::max(0.004f, s.measures.largestStep));
            EXPECT_LT(std::abs(s.clip.channels[0].front()), 0.03f); // where the loop is started
        }
        EXPECT_NEAR(s.measures.seconds, s.row.seconds, 0.001f);
        for (const Range& range : lengths) {
            if (s.row.file.starts_with(range.prefix)) {
                EXPECT_GE(s.measures.seconds, range.least);
                EXPECT_LE(s.measures.seconds, range.most);
            }
        }
        if (s.isMusic()) {
            EXPECT_GE(s.measures.seconds, 75);
            EXPECT_LE(s.measures.seconds, 120);
        }
    }
}

TEST(SoundsTest, ALoopIsAsLoudAtItsSeamAsElsewhere) {
    for (const Sound& s : sounds()) {
        if (s.row.ending != Ending::loop && !s.isMusic()) {
            continue;
        }
        // A badly folded loop has a hole or a bump there.
        const Signal& signal = s.clip.channels[0];
        constexpr std::ptrdiff_t half = samplesPerSecond / 4;
        Clip seam{{Signal(signal.end() - half, signal.end())}};
        seam.channels[0].insert(seam.channels[0].end(), signal.begin(), signal.begin() + half);
        float ratio = measure(seam).loudness / s.measures.loudness;
        EXPECT_GT(ratio, 0.4f) << s.row.file;
        EXPECT_LT(ratio, 2.5f) << s.row.file;
        EXPECT_GT(s.measures.quietest, 0.1f * s.measures.loudness) << s.row.file;
    }
}

// Files that are cut to length too early, or padded, are mute for a good part of it.
TEST(SoundsTest, ASoundLastsThroughMostOfItsFile) {
    for (const Sound& s : sounds()) {
        const Signal& signal = s.clip.channels[0];
        float audible = 0.003f * s.measures.peak;
        auto last = std::find_if(signal.rbegin(), signal.rend(),
                                 [&](float x) { return std::abs(x) > audible; });
        EXPECT_GT(signal.rend() - last, static_cast<std::ptrdiff_t>(signal.size() * 6 / 10))
            << s.row.file;
        auto first = std::ranges::find_if(signal, [&](float x) { return std::abs(x) > audible; });
        EXPECT_LT(first - signal.begin(), samplesPerSecond / 4) << s.row.file;
    }
}

TEST(SoundsTest, NoTwoSoundsAreAlike) {
    std::map<Signal, std::string> seen;
    for (const Sound& s : sounds()) {
        auto [other, fresh] = seen.emplace(s.clip.channels[0], s.row.file);
        EXPECT_TRUE(fresh) << s.row.file << " is " << other->second;
    }
}
