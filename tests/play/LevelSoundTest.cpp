#include "PlayFixture.h"
#include "Walkthrough.h"

#include "support/ListeningFixture.h"

#include "sceneManager/Player.h"
#include "sceneManager/So_Addons/Bodies.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <string_view>

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
    HeardAt{"minibell.wav", 1105, 1160, 120}, // a tip
    HeardAt{"foot1.wav", 1160, 1200, 40},     // lands from a leap
    HeardAt{"minibell.wav", 1430, 1460, 120},
    HeardAt{"squeak2.wav", 1530, 1570, 60}, // the hanging door, pushed
    HeardAt{"squeak1.wav", 1590, 1640, 35}, // and back
    HeardAt{"squeak2.wav", 2190, 2240, 4},  // still, far behind
    HeardAt{"foot0.wav", 2950, 2980, 30},
    HeardAt{"thud.wav", 6600, 6650, 60}, // the boulder, on the boards
    HeardAt{"minibell.wav", 4060, 4090, 120},
    HeardAt{"hum.wav", 4260, 4290, 75},        // the lift is here
    HeardAt{"waterfall.wav", 5180, 5240, 8},   // behind the wall
    HeardAt{"switch.wav", 10340, 10410, 60},   // the crate is on the plate
    HeardAt{"grind.wav", 10360, 10440, 15},    // the door goes up
    HeardAt{"minibell.wav", 10360, 10420, 40}, // and rings the bell
    HeardAt{"foot0.wav", 10420, 10520, 40},    // a landing

    HeardAt{"pick.wav", 7800, 7850, 50},     // the crate, in hand
    HeardAt{"anxiety5.wav", 8700, 8780, 60}, // the gong
    HeardAt{"plum#.wav", 8690, 8900, 10},    // a stone, or who comes after it, into the water
    HeardAt{"uwater.wav", 8750, 9110, 10},   // under it
    HeardAt{"breath.wav", 9390, 9520, 50},   // and up again
    HeardAt{"pick.wav", 9800, 9880, 50},     // the liana

    HeardAt{"whisp.wav", 11300, 11340, 10},     // a wall goes
    HeardAt{"whisp.wav", 11920, 11950, 60},     // somebody sleeps there
    HeardAt{"evildie#.wav", 12440, 12560, 40},  // into the fire
    HeardAt{"minibell.wav", 12180, 12300, 100}, // a secret
    HeardAt{"thud.wav", 13490, 13530, 20},      // the weight, on the boards
};

/// What would be drowned by any step or splash, were it not told by its low tones.
constexpr std::array<std::string_view, 2> lowSounds{"heart.wav", "uwater.wav"};

/// What nothing in the level makes.
constexpr std::array chapter1Never{"dying0.wav", "chomp.wav"};

/// A stretch without any sound.
struct SilentAt {
    float from, to; ///< World units.
};

// In the middle of long leaps.
constexpr std::array chapter1Silent{SilentAt{2985, 3130}, SilentAt{3443, 3543}};
constexpr int shortestSilence = 25; // steps

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

    /// Takes the fear of the dark away. It follows lamps that flicker in another way each run, so
    /// it is listened to by itself.
    static void calm() {
        soundManager().fearPeriod = 300.0F;
        soundManager().fearLevel = -1; // a step in the dark brings it to 0
        soundManager().heartVolume = 0.0F;
    }

    static void standAt(const GameDriver& game, float x, float y) {
        bodyOf(game.player())->getWorldTransform().setOrigin({x, y, 0.0F});
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
        return known != found.end() ? known->second
                                    : found.emplace(file, search(file)).first->second;
    }

    /// In the order of time. A # stands for any number: one of such sounds is drawn by chance.
    std::vector<Heard> search(const std::string& file) const {
        const std::size_t place = file.find('#');
        if (place == std::string::npos) {
            const Signal sound = builtSound("sound/" + file);
            const bool isLow =
                std::find(lowSounds.begin(), lowSounds.end(), file) != lowSounds.end();
            return isLow ? heard().findLow(sound) : heard().find(sound);
        }
        std::vector<Heard> all;
        for (int number = 0;; ++number) {
            std::string one = file;
            one.replace(place, 1, std::to_string(number));
            if (!std::filesystem::exists("sound/" + one)) {
                break;
            }
            const std::vector<Heard> sounds = heard().find(builtSound("sound/" + one));
            all.insert(all.end(), sounds.begin(), sounds.end());
        }
        std::sort(all.begin(), all.end(),
                  [](const Heard& a, const Heard& b) { return a.step < b.step; });
        return all;
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
    play("CHAPTER1", "chapter1-listened.ppm", [this](const GameDriver& game) {
        hear(game);
        calm();
    });
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

TEST_F(LevelSound, TheHeartIsHeardInTheDarkAndNotUnderALamp) {
    constexpr int wait = 8 * second;
    GameDriver game(*window, "CHAPTER1.vkl");
    game.afterStep = [this](const GameDriver& driver) { hear(driver); };
    run(game, wait);
    standAt(game, 2285.0F, 160.0F); // on the stairs, between two lamps
    run(game, wait);
    const auto& beats = allOf("heart.wav");
    ASSERT_EQ(beats.size(), 1U) << describe("heart.wav");
    EXPECT_NEAR(beats[0].step, wait + second / 2, second / 2);
    EXPECT_FALSE(allOf("breath#.wav").empty());
    EXPECT_GT(heard().level(now() - second, now()),
              heard().level(wait + second, wait + 2 * second));
}

TEST_F(LevelSound, WhoeverStaysUnderWaterGulpsDrownsAndBeginsAgain) {
    constexpr float surface = 170.0F; // of the pool, at rest
    constexpr float radius = 15.0F;   // of the protagonist
    GameDriver game(*window, "CHAPTER1.vkl");
    run(game, 1);
    standAt(game, 8640.0F, 220.0F);
    int lastAbove = 0; // the last step with the head out of the water
    int lost = 0;
    game.afterStep = [&](const GameDriver& driver) {
        hear(driver);
        if (driver.player() == nullptr) {
            lost = lost == 0 ? now() : lost;
        } else if (lost == 0 && GameDriver::placeOf(*driver.player()).y() + radius > surface) {
            lastAbove = now();
        }
    };
    Walkthrough(TOLMERE_TEST_LEVELS "/drown.walk").play(game);

    const auto& gulps = allOf("gulp#.wav"); // the eighth sounds with the last of all
    ASSERT_EQ(gulps.size(), 7U) << describe("gulp#.wav");
    for (std::size_t i = 0; i < gulps.size(); ++i) {
        EXPECT_NEAR(gulps[i].step - lastAbove, 420 + 60 * static_cast<int>(i), 6);
        EXPECT_NEAR(gulps[i].volume, i < 4 ? 128.0F : 64.0F, 8.0F) << i;
    }
    const auto& ends = allOf("diewater.wav");
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_NEAR(ends[0].step, lost, 4);
    EXPECT_NEAR(lost - lastAbove, 840, 6);
    EXPECT_TRUE(allOf("uh#.wav").empty() && allOf("dying#.wav").empty());
    EXPECT_FALSE(allOf("uwater.wav").empty());
}

TEST_F(LevelSound, APauseLetsWhatRingsEndAndStartsNothing) {
    GameDriver game(*window, "CHAPTER1.vkl");
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
    GameDriver game(*window, "CHAPTER1.vkl");
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
