#include "sceneManager/So_Addons/ScriptParser.h"
#include "TextStream.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/// The stored form of a script, which shows every link with its arguments.
std::string stored(const std::string& script) {
    const std::unique_ptr<CallbackAdd> chain(parseScript(script));
    TextWriter stream;
    chain->save(stream);
    return stream.takeText();
}

struct Example {
    const char* script;
    const char* record;
};

void expectStored(std::initializer_list<Example> examples) {
    for (const Example& example : examples) {
        EXPECT_EQ(stored(example.script), example.record) << example.script;
    }
}

TEST(ScriptParser, EachLinkTakesItsArgumentsFromTheFront) {
    expectStored({
        {"LOCK DELAY 300 X", "9 0 1 10 300 300 1 3 1 X 0 "},
        {"SETLOCK door REVERSE mill UNLOCK", "29 4 door 1 8 4 mill 1 11 0 "},
        {"DAMAGE 5 EVILDAMAGE -5 LOOKAT a", "30 5 1 31 -5 1 28 1 a 0 "},
        {"UP x STRIGGER TRIGGER X", "7 1 x 1 5 0 1 4 0 0 1 3 1 X 0 "},
        {"lock Delay 3", "3 4 lock 1 3 5 Delay 1 3 1 3 0 "}, // keywords are upper case
    });
}

TEST(ScriptParser, ANameIsAlwaysTheLastLink) {
    expectStored({{"NAME door TRIGGER X", "6 4 door "}, {"LOCK NAME door X", "9 0 1 6 4 door "}});
}

TEST(ScriptParser, TwoBlanksGiveAnEmptyWordAndOneAtTheEndGivesNone) {
    expectStored({
        {"A  B", "3 1 A 1 3 0  1 3 1 B 0 "},
        {"A ", "3 1 A 0 "},
        {" ", "3 0  0 "},
        {"REVERSE  X", "8 0  1 3 1 X 0 "},
    });
}

TEST(ScriptParser, OptionsAreTakenOnlyWhereTheyStand) {
    expectStored({
        {"SOUND a.wav", "19 a.wav 128 0 "},
        {"SOUND a.wav -V 60", "19 a.wav 60 0 "},
        {"SOUND a.wav -V 60 -P", "19 a.wav -1 0 "},
        {"SOUND a.wav -P X", "19 a.wav -1 1 3 1 X 0 "},
        {"SOUND a.wav -P", "19 a.wav 128 1 3 2 -P 0 "},
        {"SOUND a.wav -V", "19 a.wav 128 1 3 2 -V 0 "},
        {"SOUND a.wav X -V 60", "19 a.wav 128 1 3 1 X 1 3 2 -V 1 3 2 60 0 "},
        {"MOVSOUND a.wav -V 7 X", "12 a.wav 7 1 3 1 X 0 "},
        {"VSOUND a.wav -P X", "26 a.wav 128 1 3 2 -P 1 3 1 X 0 "},
        {"TRIGGER -P", "4 0 1 0 "},
        {"TRIGGER X -P", "4 0 0 1 3 1 X 1 3 2 -P 0 "},
        {"OBSCURED -O X", "18 0 1 1 3 1 X 0 "},
    });
}

TEST(ScriptParser, WhateverStandsBehindTheFirstOfTwoFilesIsTheSecond) {
    expectStored({
        {"SQUEAK a.wav b.wav X", "20 a.wav b.wav 1 3 1 X 0 "},
        {"SQUEAK a.wav DELAY 5", "20 a.wav DELAY 1 3 1 5 0 "},
        {"CREAK a.wav", "21 a.wav a.wav 0 "},
    });
}

TEST(ScriptParser, NumbersAreReadAsAStreamWouldReadThem) {
    expectStored({
        {"TIP -1", "24 4294967295 0 "},
        {"TIP +5", "24 5 0 "},
        {"DAMAGE 12abc", "30 12 0 "},
        {"DAMAGE abc", "30 0 0 "},
        {"DAMAGE 99999999999", "30 0 0 "},
        {"AMBIENT .25", "22 0.25 0 "},
        {"AMBIENT 1e99", "22 0 0 "},
        {"SOUND a.wav -V x", "19 a.wav 128 0 "},
    });
}

TEST(ScriptParser, AKeywordWithoutItsArgumentGetsNone) {
    expectStored({
        {"TIP", "24 0 0 "},
        {"DELAY", "10 0 0 0 "},
        {"LOOKAT", "28 0  0 "},
        {"SOUND", "19 - 128 0 "}, // a word that can be read back, and names no sound
        {"SQUEAK", "20 - - 0 "},
        {"NAME", "6 0  "},
    });
}

} // namespace
