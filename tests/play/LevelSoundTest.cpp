#include "PlayFixture.h"

#include "support/ListeningFixture.h"

#include "sceneManager/Player.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>

// Levels are listened to while they are played. A machine, a bell or a step of the protagonist that
// should be heard is a row of its level's table.

namespace {

constexpr int second = 60; // steps

/// A sound that must be heard while the protagonist is on that stretch of the level, world units.
struct HeardAt {
    const char* file;
    float from, to;
    float volume; ///< At least, 0 to 128.
};

constexpr std::array chapter1{
    HeardAt{"minibell.wav", 1040, 1060, 120}, // a tip
    HeardAt{"foot1.wav", 1160, 1200, 40},     // lands from a leap
    HeardAt{"minibell.wav", 1430, 1460, 120},
    HeardAt{"squeak2.wav", 1530, 1570, 60}, // the hanging door, pushed
    HeardAt{"squeak1.wav", 1590, 1640, 35}, // and back
    HeardAt{"squeak2.wav", 2300, 2380, 5},  // still, far behind
    HeardAt{"foot0.wav", 2950, 2980, 30},
    HeardAt{"thud.wav", 3690, 3730, 60}, // a crate in the hall
    HeardAt{"minibell.wav", 4060, 4090, 120},
    HeardAt{"hum.wav", 4260, 4290, 75},       // the lift is here
    HeardAt{"waterfall.wav", 5340, 5390, 10}, // behind the wall
    HeardAt{"switch.wav", 7780, 7850, 60},    // the crate is on the plate
    HeardAt{"grind.wav", 7800, 7880, 15},     // the door goes up
    HeardAt{"minibell.wav", 7800, 7860, 40},  // and rings the bell
    HeardAt{"foot0.wav", 8830, 8870, 12},     // a step
    HeardAt{"minibell.wav", 8970, 9020, 90},
};

/// What nothing in the level makes.
constexpr std::array chapter1Never{"dying0.wav", "zom0.wav"};

/// A stretch without any sound.
struct SilentAt {
    float from, to; ///< World units.
};

// In the middle of long leaps.
constexpr std::array chapter1Silent{SilentAt{2990, 3130}, SilentAt{3420, 3540}};
constexpr int shortestSilence = 30; // steps

void run(GameDriver& game, int steps) {
    for (int i = 0; i < steps; ++i) {
        game.step();
    }
}

/// Without music, as sounds are to be told from silence.
class LevelSound : public Listening<PlayFixture> {
protected:
    void prepareDirectory() override {
        Listening::prepareDirectory();
        std::filesystem::remove("music");
        std::filesystem::create_directory("music");
    }

    /// Hears a step, and keeps where it was heard.
    void hear(const GameDriver& game) {
        const SceneObject* player = game.player();
        places.push_back(player != nullptr ? GameDriver::placeOf(*player).x() : nowhere);
        listener->hearStep();
    }

    float placeOf(const Heard& sound) const {
        return places.at(static_cast<std::size_t>(std::min(sound.step, now() - 1)));
    }

    /// Steps, in a row, in which the protagonist is on the stretch: the first and the one behind
    /// the last.
    std::pair<int, int> stepsOn(const SilentAt& stretch) const {
        const auto inside = [&](float x) { return x >= stretch.from && x < stretch.to; };
        const auto first = std::find_if(places.begin(), places.end(), inside);
        const auto last = std::find_if_not(first, places.end(), inside);
        return {static_cast<int>(first - places.begin()), static_cast<int>(last - places.begin())};
    }

    const std::vector<Heard>& allOf(const std::string& file) {
        const auto known = found.find(file);
        return known != found.end()
                   ? known->second
                   : found.emplace(file, heard().find(builtSound("sound/" + file))).first->second;
    }

    /// Where a sound was heard, for messages.
    std::string describe(const std::string& file) {
        std::string text = file + " was heard at";
        for (const Heard& sound : allOf(file)) {
            text += ' ' + std::to_string(static_cast<int>(placeOf(sound))) + " (volume " +
                    std::to_string(static_cast<int>(sound.volume)) + ')';
        }
        return text;
    }

    static constexpr float nowhere = -1e9F;
    std::vector<float> places; ///< Of the protagonist in each step.
    std::map<std::string, std::vector<Heard>> found;
};

class LevelMusic : public Listening<PlayFixture> {};

} // namespace

TEST_F(LevelSound, Chapter1SoundsWhereItShouldAndIsSilentElsewhere) {
    play("CHAPTER1", "chapter1-listened.ppm", [this](const GameDriver& game) { hear(game); });
    for (const HeardAt& row : chapter1) {
        const auto& sounds = allOf(row.file);
        EXPECT_TRUE(std::any_of(sounds.begin(), sounds.end(),
                                [&](const Heard& sound) {
                                    const float place = placeOf(sound);
                                    return place >= row.from && place <= row.to &&
                                           sound.volume >= row.volume;
                                }))
            << "between " << row.from << " and " << row.to << ": " << describe(row.file);
    }
    for (const char* file : chapter1Never) {
        EXPECT_TRUE(allOf(file).empty()) << describe(file);
    }
    for (const SilentAt& stretch : chapter1Silent) {
        const auto [first, last] = stepsOn(stretch);
        ASSERT_LE(first + shortestSilence, last) << "nobody is there";
        EXPECT_EQ(heard().peak(first, last), 0.0F)
            << "between " << stretch.from << " and " << stretch.to;
    }
}

TEST_F(LevelSound, APauseLetsWhatRingsEndAndStartsNothing) {
    GameDriver game(*window);
    game.afterStep = [this](const GameDriver& driver) { hear(driver); };
    run(game, second);
    game.hold("right", true);
    run(game, second);
    EXPECT_GT(heard().level(second, now()), 0.01F);
    game.hold("escape", true);
    run(game, 6 * second);
    EXPECT_EQ(heard().peak(now() - second, now()), 0.0F);
    game.hold("escape", false);
    run(game, 1);
    game.hold("escape", true);
    run(game, 2 * second);
    EXPECT_GT(heard().level(now() - second, now()), 0.01F);
}

TEST_F(LevelMusic, StartsWithTheLevelAndGoesOnInAPause) {
    GameDriver game(*window);
    game.afterStep = [this](const GameDriver&) { listener->hearStep(); };
    run(game, 6 * second);
    game.hold("escape", true);
    run(game, 6 * second);
    // In the pause, long after the last sound of the world, the mix is the piece and no more.
    constexpr std::size_t from = 388 * Recording::bufferFrames; // 9 seconds
    const Signal piece = builtSound("music/cambience1.ogg");
    const Signal part(&piece[from], &piece[from + second * Recording::stepFrames]);
    const auto pieces = heard().find(part);
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_NEAR(pieces[0].step, 9 * second, 5);
    EXPECT_NEAR(pieces[0].volume, 128.0F, 0.5F);
    EXPECT_GT(pieces[0].likeness, 0.99F);
}
