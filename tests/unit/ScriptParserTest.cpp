#include "sceneManager/So_Addons/ScriptParser.h"
#include "Records.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

struct Example {
    const char* script;
    const char* record;
};

TEST(ScriptParser, EachLinkTakesItsArgumentsAndOptionsWhereTheyStand) {
    const Example examples[] = {
        // Each link takes its arguments from the front.
        {"LOCK DELAY 300 X", "9 0 1 10 300 300 1 3 1 X 0 "},
        {"SETLOCK door REVERSE mill UNLOCK", "29 4 door 1 8 4 mill 1 11 0 "},
        {"DAMAGE 5 EVILDAMAGE -5 LOOKAT a", "30 5 1 31 -5 1 28 1 a 0 "},
        {"UP x STRIGGER TRIGGER X", "7 1 x 1 5 0 1 4 0 0 1 3 1 X 0 "},
        {"lock Delay 3", "3 4 lock 1 3 5 Delay 1 3 1 3 0 "}, // keywords are upper case
        // A name is always the last link.
        {"NAME door TRIGGER X", "6 4 door "},
        {"LOCK NAME door X", "9 0 1 6 4 door "},
        // Two blanks give an empty word, and one at the end gives none.
        {"A  B", "3 1 A 1 3 0  1 3 1 B 0 "},
        {"A ", "3 1 A 0 "},
        {" ", "3 0  0 "},
        {"REVERSE  X", "8 0  1 3 1 X 0 "},
        // Options are taken only where they stand.
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
        // Whatever stands behind the first of two files is the second.
        {"SQUEAK a.wav b.wav X", "20 a.wav b.wav 1 3 1 X 0 "},
        {"SQUEAK a.wav DELAY 5", "20 a.wav DELAY 1 3 1 5 0 "},
        {"CREAK a.wav", "21 a.wav a.wav 0 "},
        // Numbers are read as a stream would read them.
        {"TIP -1", "24 4294967295 0 "},
        {"TIP +5", "24 5 0 "},
        {"DAMAGE 12abc", "30 12 0 "},
        {"DAMAGE abc", "30 0 0 "},
        {"DAMAGE 99999999999", "30 0 0 "},
        {"AMBIENT .25", "22 0.25 0 "},
        {"AMBIENT 1e99", "22 0 0 "},
        {"SOUND a.wav -V x", "19 a.wav 128 0 "},
        // A keyword without its argument gets none.
        {"TIP", "24 0 0 "},
        {"DELAY", "10 0 0 0 "},
        {"LOOKAT", "28 0  0 "},
        {"SOUND", "19 - 128 0 "}, // a word that can be read back, and names no sound
        {"SQUEAK", "20 - - 0 "},
        {"NAME", "6 0  "},
    };
    for (const Example& example : examples) {
        const std::unique_ptr<CallbackAdd> chain(parseScript(example.script));
        EXPECT_EQ(recordOf(*chain), example.record) << example.script;
    }
}

} // namespace
