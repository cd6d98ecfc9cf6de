#include "support/EngineFixture.h"

#include "Files.h"
#include "GameStart.h"
#include "game/commands/CommandTables.h"
#include "sceneManager/So_Addons/CallbackAdd.h"
#include "sceneManager/So_Addons/ScriptParser.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <regex>
#include <set>

// The game passes over a word that it does not know, so a slip of the pen in a script would go
// unnoticed. The maps' scripts are looked through when the maps are built; these are the code's.

namespace {

/// A text as the sources have it, and whether it is only a part of what is put together there.
struct Literal {
    std::string text;
    bool continues = false; ///< Something is added behind it.
    bool continued = false; ///< It is added behind something.
};

/// All texts of a source file; neighbours are one.
std::vector<Literal> literalsOf(const std::string& path) {
    const std::string source =
        std::regex_replace(readFile(path), std::regex("//[^\n]*|#include[^\n]*"), "");
    const std::regex group(R"re((\+\s*|numbered\()?((?:"(?:[^"\\]|\\.)*"\s*)+)(\+)?)re");
    const std::regex quotes(R"re("\s*"|"\s*$|^")re");
    std::vector<Literal> literals;
    for (std::sregex_iterator found(source.begin(), source.end(), group), end; found != end;
         ++found) {
        const std::smatch& match = *found;
        const bool isNumbered = match.str(1) == "numbered(";
        literals.push_back({std::regex_replace(match.str(2), quotes, ""),
                            match[3].matched || isNumbered, match[1].matched && !isNumbered});
    }
    return literals;
}

std::vector<std::string> wordsOf(const Literal& literal) {
    std::vector<std::string> words;
    for (ScriptWords rest(literal.text); !rest.empty();) {
        words.emplace_back(rest.take());
    }
    if (!words.empty() && literal.continues && !literal.text.ends_with(' ')) {
        words.pop_back(); // a part of one
    }
    if (!words.empty() && literal.continued) {
        words.erase(words.begin()); // a part of one, or the void before a blank
    }
    return words;
}

bool isKeyword(const std::string& word) {
    const auto keywords = keywordTable();
    return std::ranges::find(keywords, word, &Keyword::word) != keywords.end();
}

/// What only a script's words look like.
bool isNamedLikeACommand(const std::string& word) {
    static const std::regex pattern("(CH|CHAPTER|SECRET)[0-9]+[A-Z][A-Z0-9]*|SECRET[0-9]+");
    return std::regex_match(word, pattern);
}

bool isScript(const std::vector<std::string>& words) {
    const bool hasKeyword = std::ranges::any_of(words, isKeyword);
    return (words.size() > 1 && hasKeyword) || std::ranges::any_of(words, isNamedLikeACommand);
}

class ScriptWordsTest : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        gameStart(); // enters all words
    }

    /// Takes the words as a chain would, and keeps those that nothing answers to.
    void check(const Literal& literal) {
        std::string text;
        for (const std::string& word : wordsOf(literal)) {
            text += (text.empty() ? "" : " ") + word;
        }
        for (ScriptWords rest(text); !rest.empty();) {
            const std::string word(rest.front());
            const auto keywords = keywordTable();
            const auto keyword = std::ranges::find(keywords, word, &Keyword::word);
            if (keyword == keywords.end()) {
                rest.take();
                if (!callbackTable().contains(word)) {
                    unknown.insert(word);
                }
                continue;
            }
            if (word == "SOUND" && rest.hasSecond()) {
                ScriptWords sound = rest;
                sound.take();
                sounds.emplace(sound.front());
            }
            const std::unique_ptr<CallbackAdd> link(keyword->make(rest));
        }
        ++scripts;
    }

    std::set<std::string> unknown;
    std::set<std::string> sounds; ///< Those that scripts play.
    int scripts = 0;
};

} // namespace

TEST_F(ScriptWordsTest, EveryWordOfTheCodesScriptsIsAKeywordOrACommand) {
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(TOLMERE_CONTENT "/../game")) {
        if (entry.path().extension() != ".cpp") {
            continue;
        }
        for (const Literal& literal : literalsOf(entry.path().string())) {
            if (isScript(wordsOf(literal))) {
                check(literal);
            }
        }
    }
    EXPECT_GT(scripts, 200) << "the sources are not where they are looked for";
    // The fourth wave has a point too many, and two blanks in a row are an empty word.
    const std::set<std::string> onPurpose{"", "CH12SPAWN"};
    EXPECT_EQ(unknown, onPurpose);
    for (const std::string& sound : sounds) {
        EXPECT_TRUE(std::filesystem::exists(TOLMERE_GAME_DIRECTORY "/sound/" + sound)) << sound;
    }
}

TEST_F(ScriptWordsTest, EveryTableOfTheVocabularyIsWhole) {
    // Common words, those of the chapters from the first to the fifteenth, and of the secrets.
    constexpr std::size_t sizes[] = {27, 20, 19, 45, 19, 13, 22, 20, 22,
                                     15, 22, 6,  26, 21, 10, 12, 25};
    const auto tables = commandTables();
    ASSERT_EQ(tables.size(), std::size(sizes));
    std::set<std::string> names;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        EXPECT_EQ(tables[i].size(), sizes[i]) << "table " << i;
        for (const NamedCommand& command : tables[i]) {
            EXPECT_TRUE(names.insert(command.name).second) << command.name << " twice";
        }
    }
    EXPECT_EQ(names.size(), 344U);
}
