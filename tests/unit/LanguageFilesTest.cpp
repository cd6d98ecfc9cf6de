#include "support/EngineFixture.h"

#include "Files.h"
#include "Language.h"
#include "graphicsModule/GraphicsLetter.h"
#include "platform/Image.h"
#include "sceneManager/MapFile.h"
#include "tools/mapc/MapDump.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <set>

namespace {

const std::string gameDirectory = TOLMERE_GAME_DIRECTORY "/";
constexpr const char* languageFiles[] = {"lang_eng.txt", "lang_pol.txt"};

} // namespace

/// The languages as they are shipped, read by the game's own reader.
class LanguageFilesTest : public EngineFixture {
protected:
    void load(const char* name) {
        directory.write(languageFile, readFile(gameDirectory + name));
        loadLanguage();
    }

    static std::set<int> definedNumbers() {
        std::set<int> numbers;
        for (std::size_t i = 0; i < languageTable.size(); ++i) {
            if (!languageTable[i].empty()) {
                numbers.insert(static_cast<int>(i) + 1);
            }
        }
        return numbers;
    }

    /// Runs the builder on that source. Returns its exit status; what it says goes to `said`.
    int build(const std::string& source) {
        directory.write("in.txt", source);
        std::string command = gameDirectory + "../tools/language/language_builder " +
                              directory.file("in.txt") + " " + directory.file("out.txt") + " 2>" +
                              directory.file("said.txt");
        int status = std::system(command.c_str());
        said = readFile(directory.file("said.txt"));
        return status;
    }

    std::string said;
};

TEST_F(LanguageFilesTest, AllLanguagesHoldTheTextsThatTheGameAsksFor) {
    constexpr int lastOfAll = 396; // below it there is no gap
    load(languageFiles[0]);
    const std::set<int> numbers = definedNumbers();
    for (const char* name : languageFiles) {
        load(name);
        EXPECT_EQ(definedNumbers(), numbers) << name;
        for (int number = 1; number <= lastOfAll; ++number) {
            EXPECT_TRUE(numbers.contains(number)) << name << " " << number;
        }
    }
}

TEST_F(LanguageFilesTest, EveryTextThatALevelShowsOrSaysIsThere) {
    load(languageFiles[0]);
    const std::set<int> numbers = definedNumbers();
    const std::regex reference("(?:TIP number=|text=qq)([0-9]+)");
    for (const auto& map : std::filesystem::directory_iterator(TOLMERE_BUILT_MAPS)) {
        const std::string dump = mapc::dumpMap(readMapText(map.path().string()));
        for (std::sregex_iterator found(dump.begin(), dump.end(), reference), end; found != end;
             ++found) {
            const auto number = static_cast<int>(std::stoul((*found)[1].str())); // -1 clears a tip
            EXPECT_TRUE(number == -1 || numbers.contains(number)) << map.path() << " " << number;
        }
    }
}

TEST_F(LanguageFilesTest, TipsFitOnTwoRows) {
    for (const char* name : languageFiles) {
        load(name);
        for (int n : definedNumbers()) {
            const bool menuPage = n == 54 || n == 259; // paragraphs of panels
            EXPECT_LE(text(n).size(), menuPage ? 250U : 110U) << name << " " << n;
        }
    }
}

TEST_F(LanguageFilesTest, EveryLetterOfEveryTextIsDrawnInTheFont) {
    platform::Image font;
    std::string reason;
    ASSERT_TRUE(platform::readTga(gameDirectory + "data/text2.tga", font, reason)) << reason;
    auto ink = [&](char letter) {
        GraphicsLetter shown(0, 0, 16, 16, letter, 1, 1, 1, 1);
        const std::vector<float>& uv = shown.getData().texcoords;
        auto pixel = [](float t) { return static_cast<int>(std::floor(t * 256)); };
        int sum = 0;
        for (int y = pixel(uv[1]); y < pixel(uv[3]); ++y) {
            for (int x = pixel(uv[0]); x < pixel(uv[4]); ++x) {
                int wrapped = (y & 255) * 256 + (x & 255);
                sum += font.pixels[static_cast<std::size_t>(wrapped) * 4 + 3];
            }
        }
        return sum;
    };
    EXPECT_EQ(ink(' '), 0);
    EXPECT_GT(ink('W'), 3 * ink('.'));
    for (const char* name : languageFiles) {
        load(name);
        for (const std::string& line : languageTable) {
            for (char letter : line) {
                EXPECT_TRUE(letter == ' ' || ink(letter) > 255) << name << ": " << line;
            }
        }
    }
}

TEST_F(LanguageFilesTest, TheBuilderPutsTextsOnTheirLines) {
    ASSERT_EQ(build("# note\r\n3: three: \xC5\xBC\xC3\xB3\xC5\x82w\r\n\n1\tone\n"), 0) << said;
    EXPECT_TRUE(
        readFile(directory.file("out.txt")).starts_with("one\r\n\r\nthree: \xBF\xF3\xB3w\r\n\r\n"));
}

TEST_F(LanguageFilesTest, TheBuilderNamesTheLineThatIsWrong) {
    struct Case {
        const char *source, *complaint;
    };
    for (const Case& c :
         {Case{"1: a\n2: b\n1: c\n", "in.txt:3: the text 1 was given before"},
          Case{"1: a\n2: \xE2\x80\x93\n", "in.txt:2: the game has no letter U+2013"},
          Case{"1: broken \xC5\n", "in.txt:1: the game has no letter U+FFFD"},
          Case{"\n\nno number\n", "in.txt:3: a text begins with its number"},
          Case{"0: zero\n", "in.txt:1: a text begins with its number"},
          Case{"7:tight\n", "in.txt:1: a text begins with its number"}}) {
        EXPECT_NE(build(c.source), 0);
        EXPECT_NE(said.find(c.complaint), std::string::npos) << said;
    }
}
