#include "Mutator.h"

#include "support/EngineFixture.h"

#include "Files.h"
#include "Language.h"
#include "ModuleManager.h"
#include "Settings.h"
#include "TextStream.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Levels.h"
#include "game/flow/SaveGame.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/TestPlayer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <streambuf>

// Each test damages good input at random for a while; the seed is printed, so that a crash can be
// repeated. TOLMERE_FUZZ_SECONDS says for how long all five run together, TOLMERE_FUZZ_SEED where.

namespace {

std::string environment(const char* name, const char* otherwise) {
    const char* value = std::getenv(name);
    return value == nullptr ? otherwise : value;
}

/// Swallows standard output, which the readers' messages would flood.
class Silence {
    class Hole : public std::streambuf {
        int overflow(int character) override { return character; }
    };

public:
    Silence() : before(std::cout.rdbuf(&hole)) {}
    ~Silence() { std::cout.rdbuf(before); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    Hole hole;
    std::streambuf* before;
};

class ReaderFuzz : public EngineFixture {
protected:
    template <class Trial>
    void run(Trial trial) {
        const auto seed = static_cast<std::uint32_t>(std::stoul(
            environment("TOLMERE_FUZZ_SEED", std::to_string(std::random_device()()).c_str())));
        std::cout << "TOLMERE_FUZZ_SEED=" << seed << std::endl;
        Mutator mutator(seed);
        const double seconds = std::stod(environment("TOLMERE_FUZZ_SECONDS", "4")) / 5.0;
        const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
        int trials = 0;
        const Silence silence;
        while (std::chrono::steady_clock::now() < end) {
            trial(mutator);
            ++trials;
        }
        EXPECT_GT(trials, 10);
    }
};

std::string readGoodMap() {
    const std::string packed = readFile(TOLMERE_BUILT_MAPS "/CHAPTER1.vkl");
    std::string text;
    EXPECT_TRUE(uncompress(packed.data(), packed.size(), text));
    return text;
}

} // namespace

TEST_F(ReaderFuzz, ADamagedMapIsRefusedOrPlays) {
    const std::string good = readGoodMap();
    run([&good](Mutator& mutator) {
        const std::string text = mutator.mutate(good);
        try {
            TextReader reader(text);
            sceneManager().addScene(parseScene(reader, true));
            physicsModule().update();
            physicsModule().update();
        } catch (const std::string& reason) {
            EXPECT_EQ(reason.rfind("file corrupted", 0), 0U) << reason;
        }
        sceneManager().clearScene();
    });
}

// Cut short or altered in its bytes or in its text, a save is played or leads to the menu.
TEST_F(ReaderFuzz, ADamagedSaveIsPlayedOrTold) {
    registerFlowCommands();
    auto* floor = new SceneObject(makeBoxParts({}, 0.0F, 0.0F, 500.0F, 10.0F));
    floor->addAddition(
        parseScript("TRIGGER -P LOCK SAVEGAME DELAY 3 CH4END CHECKINGFORPLAYERDEATH"));
    sceneManager().addSceneObject(floor);
    sceneManager().addSceneObject(new TestPlayer);
    enterChapter(false);
    saveGameAs("good.vkl");
    const std::string packed = readFile("save/good.vkl");
    std::string good;
    ASSERT_TRUE(uncompress(packed.data(), packed.size(), good));
    int number = 0;
    run([&](Mutator& mutator) {
        const std::string name = "save" + std::to_string(++number) + ".vkl";
        std::string damaged;
        if (number % 4 == 0) {
            damaged = mutator.mutate(packed);
        } else {
            const std::string text = mutator.mutate(good);
            compress(text.data(), text.size(), damaged);
        }
        directory.write("save/" + name, damaged);
        setModifier("ACTUAL_SAVE", name, moduleManager().settingsText);
        loadLastSave();
        EXPECT_EQ(levelRunning == 1, sceneManager().player != nullptr);
        step(2);
        std::filesystem::remove("save/" + name);
        physicsModule().removeAllScripts();
    });
    levelRunning = 0;
}

TEST_F(ReaderFuzz, DamagedSettingsGiveAValueOrAReason) {
    const std::string good = moduleManager().settingsText;
    run([&good](Mutator& mutator) {
        std::string text = mutator.mutate(good);
        for (const char* key : {"WINDOW_WIDTH", "BRIGHTNESS", "KEYUP", "LANGUAGE_FILE"}) {
            try {
                getModifier<int>(key, text);
                getModifier<float>(key, text);
                getModifier<bool>(key, text);
            } catch (const std::string& reason) {
                EXPECT_EQ(reason, std::string("bad value in modifier ") + key);
            }
            setModifier<int>(key, 7, text);
        }
    });
}

TEST_F(ReaderFuzz, ADamagedScriptRunsAndIsStored) {
    const std::string good = "LOCK SOUND a.wav -V 60 -P FADENORMAL DELAY 3 TIP 4 AMBIENT 0.5 UP x "
                             "DELAYORKEY 4 TRIGGER -P STRIGGER SETLOCK a UNLOCK REVERSE b LOOKAT c "
                             "DAMAGE 3 EVILDAMAGE -4 REMOVEJOINTAT d OBSCURED -O SQUEAK a b "
                             "REMOVESCRIPT NAME door";
    run([&good](Mutator& mutator) {
        const std::unique_ptr<CallbackAdd> chain(parseScript(mutator.mutate(good) + " X"));
        TextWriter writer;
        chain->save(writer);
        TextReader reader(writer.text());
        const std::unique_ptr<So_Addition> copy(readAddition(reader));
        TextWriter again;
        copy->save(again);
        EXPECT_EQ(writer.text(), again.text());
        for (int step = 0; step < 5; ++step) {
            copy->update(nullptr);
        }
    });
}

TEST_F(ReaderFuzz, ADamagedLanguageFileFillsTheTable) {
    const std::string good = "First line\r\nSecond \xEA\r\n\r\nFourth\n";
    run([&good](Mutator& mutator) {
        const std::string text = mutator.mutate(good);
        writeFile(text, languageFile);
        loadLanguage();
        EXPECT_LE(languageTable.size(), text.size() + 1);
        for (int n = -1; n < 8; ++n) {
            ::text(n);
        }
    });
}
