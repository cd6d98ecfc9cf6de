#include "Language.h"

#include "support/EngineFixture.h"

#include "ModuleManager.h"
#include "Settings.h"

namespace {

class LanguageTest : public EngineFixture {
protected:
    void load(const std::string& bytes) {
        directory.write(languageFile, bytes);
        loadLanguage();
    }

    static void setFile(const std::string& name) {
        setModifier("LANGUAGE_FILE", name, moduleManager().settingsText);
    }
};

} // namespace

TEST_F(LanguageTest, LinesAreNumberedFromOneAndTheRestIsABlank) {
    load("Abc\nsecond\n\nfourth");
    EXPECT_EQ(text(1), "Abc");
    EXPECT_EQ(text(3), "");
    EXPECT_EQ(text(4), "fourth");
    for (const int n : {0, -1, 5, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(text(n), " ") << n;
    }
}

TEST_F(LanguageTest, LineEndsOfAnyKindGiveTheSameTable) {
    const std::vector<std::string> expected{"one", "two", "three"};
    for (const char* bytes : {"one\ntwo\nthree", "one\ntwo\nthree\n", "one\r\ntwo\r\nthree\r\n"}) {
        load(bytes);
        EXPECT_EQ(languageTable, expected);
    }
}

TEST_F(LanguageTest, PolishLettersTakeTheirPlaceInTheFontOnce) {
    load("e \xEA s \x9C Z \x8F plain ~");
    EXPECT_EQ(text(1), "e \xD6 s \xEA Z \xBA plain ~");
}

TEST_F(LanguageTest, AFileThatCannotBeReadEmptiesTheTable) {
    for (const char* name : {"none.txt", "maps"}) {
        load("Abc\n");
        setFile(name);
        loadLanguage();
        EXPECT_EQ(text(1), " ");
        setFile("lang_eng.txt");
        loadLanguage();
    }
}

TEST_F(LanguageTest, WithoutTheSettingTheFormerFileIsReadAgain) {
    directory.write(languageFile, "new\n");
    moduleManager().settingsText.clear();
    testing::internal::CaptureStdout();
    loadLanguage();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "bad value in modifier LANGUAGE_FILE\n");
    EXPECT_EQ(text(1), "new");
}

TEST_F(LanguageTest, TwoHintsHaveAWordingForAJoystickWhileItIsThere) {
    window->joystickPresent = true;
    EXPECT_EQ(text(17), "line 17");
    EXPECT_EQ(text(18), "line 393");
    EXPECT_EQ(text(29), "line 394");
    window->joystickPresent = false;
    EXPECT_EQ(text(18), "line 18");
    EXPECT_EQ(text(29), "line 29");
}
