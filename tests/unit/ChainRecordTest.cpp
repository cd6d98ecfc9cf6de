#include "Failure.h"
#include "Records.h"
#include "sceneManager/So_Addons/ScriptParser.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

std::string readAndPrint(const std::string& record) {
    TextReader stream(record);
    const std::unique_ptr<So_Addition> addition(readAddition(stream));
    EXPECT_GE(stream.offset() + 1, record.size()) << "something was left of " << record;
    return recordOf(*addition);
}

TEST(ChainRecord, EveryKeywordPrintsWhatItReadsBack) {
    for (const Keyword& keyword : keywordTable()) {
        for (const char* rest : {"", " 7", " 7 X", " -P", " -O X", " a.wav -V 3 X",
                                 " a.wav b.wav X", "  X", " a\tb", " \n -V 3"}) {
            const std::string script = std::string(keyword.word) + rest;
            const std::unique_ptr<CallbackAdd> chain(parseScript(script));
            const std::string record = recordOf(*chain);
            EXPECT_EQ(readAndPrint(record), record) << script;
        }
    }
}

TEST(ChainRecord, StateIsReadBack) {
    for (const char* record : {"9 1 1 10 300 123 1 3 1 X 0 ", "25 190 191 1 3 1 X 0 ", "4 1 1 0 ",
                               "5 1 0 ", "18 1 1 0 ", "24 4294967295 0 "}) {
        EXPECT_EQ(readAndPrint(record), record);
    }
}

TEST(ChainRecord, DamageIsToldAndLeavesNothingBehind) {
    for (const char* record : {
             "",             // nothing
             "9",            // cut in a link
             "9 0 1",        // cut behind has-next
             "9 2 0 ",       // no bool
             "10 5 x 0 ",    // no number
             "6 -1 door ",   // impossible lengths
             "6 1000 door ", //
             "9 0 1 2 50 ",  // hit points inside a chain
             "33 ",
             "-1 ",          // no such type
             "33 0 0 ",      // a type without a reader
             "0 1 2 0 ",     // a dialog's flag that is no flag
             "0 9 0 0 1 a ", // more entries than the text can hold
             "0 1 0 0 9 a 5 ",
             "0 1 0 0 -1 a 5 ",
             "9 0 1 0 0 0 0 ", // nothing inside a chain
             "1 5 much ",
             "1 5000000000 0 ",
             "2 x ",
             "15 nan ",
         }) {
        TextReader stream(record);
        EXPECT_TRUE(isCorruption(failureOf([&stream] { delete readAddition(stream); }))) << record;
    }
}

} // namespace
