#include "MapCompilerFixture.h"

#include "Files.h"
#include "tools/mapc/MapDump.h"

#include <gmock/gmock.h>

#include <algorithm>

// What the compiler says of maps that it refuses, and of maps that the game would misread.

using testing::HasSubstr;

TEST_F(MapCompilerTest, AProblemNamesFileObjectAndReason) {
    const std::string area = R"(,"x":0,"y":0,"width":50,"height":50)";
    const std::string crate = R"({"id":5,"name":"BOX","type":"Crate")" + area;
    const std::string monster = R"({"id":6,"type":"Monster","point":true,"x":0,"y":0)";
    const std::string concave =
        R"("polygon":[{"x":0,"y":0},{"x":40,"y":0},{"x":40,"y":40},{"x":30,"y":10}])";
    const std::vector<std::pair<std::string, std::string>> cases{
        {R"({"id":5,"name":"BOX","type":"Crat")" + area + "}",
         "map: object 5 \"BOX\": has the unknown class \"Crat\""},
        {R"({"id":5)" + area + "}", "object 5: has no class"},
        {crate + with({{"script", "LOCK KNOWN WORDD"}}) + "}", "the unknown word \"WORDD\""},
        {crate + with({{"script", "LOCK  KNOWN"}}) + "}", "two blanks"},
        {crate + with({{"script", "REVERSE LIFT9"}}) + "}",
         "\"LIFT9\", and no object has that name"},
        {crate + with({{"mass", "heavy"}}) + "}", "\"mass\" must be a number"},
        {crate + with({{"mass", 0}}) + "}", "mass above 0"},
        {crate + with({{"parallax", 0.5}}) + "}", "parallax of 1"},
        {crate + with({{"colour", "red"}}) + "}", "\"red\" is no colour"},
        {crate + R"(},{"id":6,"type":"Wall","x":40,"y":0,"width":99,"height":99})",
         "object 5 \"BOX\": stands in object 6 at rest"},
        {R"({"id":6,"type":"Wall","x":0,"y":0,"width":99,"height":9})", "thinner than 40"},
        {R"({"id":6,"type":"Wall","x":-520,"y":-20,"width":99,"height":99})",
         "STARTPOS\": the character would stand in object 6"},
        {R"({"id":6,"type":"Wall",)" + concave + "}", "concave"},
        {R"({"id":6,"type":"Wall","polygon":[{"x":0,"y":0},{"x":9,"y":0},{"x":4,"y":0}]})",
         "degenerate"},
        {R"({"id":6,"type":"Wall","polyline":[{"x":0,"y":0},{"x":9,"y":0}]})", "needs an area"},
        {R"({"id":6,"type":"Hinge","point":true})", "\"a\" must refer to the object that moves"},
        {R"({"id":6,"type":"Hinge","point":true)" + with({{"a", 77}}) + "}",
         "object 77, which is not in the level"},
        {R"({"id":6,"type":"Scenery")" + area + with({{"script", "LOCK KNOWN"}}) + "}",
         "has no body, which a script needs"},
        {R"({"id":6,"type":"Scenery")" + area + with({{"dialog", "60 hm"}}) + "}",
         "has no body, which a dialog needs"},
        {R"({"id":6,"type":"Light","point":true})", "object 6: needs a size"},
        {R"({"id":6,"type":"Light")" + area + with({{"flicker", -2}}) + "}", "must not be below 0"},
        {R"({"id":6,"type":"Light")" + area + with({{"on", 77}}) + "}",
         "object 77, which is not in the level"},
        {R"({"id":6,"type":"Light")" + area + with({{"on", 7}}) + R"(},{"id":7,"type":"Scenery")" +
             area + "}",
         "object 7, which has no body to carry anything"},
        {R"({"id":6,"type":"Light")" + area + with({{"group", "G"}}) + "}",
         "the group has no body to carry it"},
        {crate + with({{"dialog", "60 hm\nqq5"}}) + "}",
         "the line \"qq5\": it needs steps above 0"},
        {crate + with({{"dialog", "0 hm"}}) + "}", "it needs steps above 0"},
        {crate + with({{"dialog", "60"}}) + "}", "it needs steps above 0"},
        {crate + with({{"dialog", "60 qq5 apples"}}) + "}", "qq needs the number"},
        {crate + with({{"dialog", "60 qq0"}}) + "}", "qq needs the number"},
        {crate + with({{"dialog", "60 \u0142"}}) + "}", "letters with marks belong"},
        {crate + with({{"forcePower", "much"}}) + "}", "\"forcePower\" must be a number"},
        {R"({"id":6,"type":"Scenery")" + area + with({{"parallax", 0.5}}) + "}", "lit slice"},
        {R"({"id":6,"type":"Water","x":0,"y":0,"width":20,"height":50})", "wider than 20 units"},
        {R"({"id":6,"type":"Water","rotation":5)" + area + "}", "a rectangle that is not turned"},
        {R"({"id":6,"type":"Water")" + area + with({{"group", "a"}}) + "}", "part of a group"},
        {monster + with({{"state", "angry"}}) + "}", "must be hunter, patrol or puppet"},
        {monster + with({{"bite", 0}}) + "}", "\"bite\" must be above 0"},
        {monster + with({{"armor", 101}}) + "}", "\"armor\" is too large"},
        {monster + with({{"speed", -1}}) + "}", "\"speed\" must not be below 0"},
        {monster + with({{"health", -1}}) + "}", "\"health\" must not be below 0"},
        {monster + with({{"parallax", 0.5}}) + "}", "parallax of 1"},
        {monster + with({{"group", "a"}}) + "}", "part of a group"},
        {monster + with({{"way", 77}}) + "}", "object 77, which is no object of class Way"},
        {monster + with({{"way", 7}}) + R"(},{"id":7,"type":"Way")" + area + "}",
         "a Way is drawn as a line"},
        {R"({"id":6,"type":"Monster")" + area + "}", "drawn as a point"},
        {monster + R"(},{"id":7,"type":"Wall","x":5,"y":0,"width":50,"height":50})",
         "object 6: stands in object 7"},
        {R"({"id":6,"type":"Emitter","point":true)" + with({{"life", 0}}) + "}",
         "\"life\" must not be below 1"},
        {R"({"id":6,"type":"Rope","ellipse":true,"width":9})", "a line or a rectangle"},
        {R"({"id":6,"type":"Rope","polyline":[{"x":0,"y":0}]})", "no length"},
        {R"({"id":5,"type":"Wall")" + area +
             R"(},{"id":6,"type":"Rope","x":9,"y":9,"width":5,)"
             R"("height":20})",
         "lies in object 5 altogether"},
        {R"({"id":6,"type":"Rope","width":5,"height":90000})", "too long"},
        {R"({"id":6,"type":"Scenery")" + area + with({{"sheetColumns", 4}, {"sheetRows", 2}}) + "}",
         "as many rows as columns"},
    };
    for (const auto& [object, complaint] : cases) {
        EXPECT_THAT(complaintOf(object), HasSubstr(complaint)) << object;
    }
    EXPECT_EQ("", compile(R"({"type":"map","layers":[]})"));
    EXPECT_EQ("map: has no object named STARTPOS", mapc::describe(problems.at(0), "map"));
}

TEST_F(MapCompilerTest, AScriptThatTheGamePassesOverInSilenceIsAProblem) {
    soundDirectory = "sound";
    musicDirectory = "music";
    const auto joint = [](const std::string& type, int a, double speed) {
        return R"({"id":)" + std::to_string(50 + a) + R"(,"type":")" + type +
               R"(","point":true,"x":0,"y":0)" + with({{"a", a}, {"speedUp", speed}}) + "}";
    };
    const auto mapWith = [&](const std::string& script) {
        const std::string area = R"(,"y":0,"width":20,"height":20)";
        return mapOf(
            R"({"id":5,"name":"HINGED","type":"Crate","x":0)" + area + with({{"script", script}}) +
            R"(},{"id":6,"name":"SLIDING","type":"Crate","x":90)" + area +
            with({{"script", "SQUEAK click.wav click.wav"}}) +
            R"(},{"id":7,"name":"IDLE","type":"Crate","x":190)" + area + "}," +
            joint("Hinge", 5, 0) + "," + joint("Slider", 6, -30) + "," + joint("Slider", 7, 0));
    };
    const std::vector<std::pair<std::string, std::string>> cases{
        {"LOCK DELAY", "DELAY, which needs a word behind it"},
        {"LOCK DELAY soon KNOWN", "DELAY, which needs a whole number"},
        {"DELAYORKEY 1 KNOWN", "DELAYORKEY, which needs at least 2 steps"},
        {"TIP 7a", "TIP, which needs a whole number"},
        {"AMBIENT dark", "AMBIENT, which needs a number"},
        {"REVERSE", "REVERSE, which needs a word"},
        {"REVERSE HINGED", "needs a Slider with a speed as the first joint of \"HINGED\""},
        {"REVERSE IDLE", "needs a Slider with a speed as the first joint of \"IDLE\""},
        {"SQUEAK click.wav", "SQUEAK, which needs a Slider as the object's first joint"},
        {"LOCK LOOKAT IDLE KNOWN", "LOOKAT, which lets nothing behind it run"},
        {"NAME X KNOWN", "NAME, which lets nothing behind it run"},
        {"SCRATCH ALL", "SCRATCH, which knows only the word NULL"},
        {"SOUND click.wav -P", "has a -P that is no option there"},
        {"SOUND click.wav -V loud", "SOUND, which needs a volume from 0 to 128 behind -V"},
        {"MOVSOUND click.wav -V 129", "MOVSOUND, which needs a volume"},
        {"VSOUND click.ogg", "sound \"click.ogg\" does not exist"},
        {"CREAK click.wav KNOWN", "sound \"KNOWN\" does not exist"},
    };
    for (const auto& [script, complaint] : cases) {
        EXPECT_EQ("", compile(mapWith(script))) << script;
        ASSERT_FALSE(problems.empty()) << script;
        EXPECT_THAT(mapc::describe(problems[0], "map"), HasSubstr(complaint)) << script;
    }
    for (const char* script :
         {"TRIGGER -P LOCK TIP -1 DELAY 2 AMBIENT 0.5 SETLOCK IDLE", "OBSCURED -O", "NAME X",
          "STRIGGER REVERSE SLIDING SOUND click.wav -V 128 -P", "SCRATCH NULL", "UP X KNOWN"}) {
        compile(mapWith(script));
        EXPECT_THAT(problems, testing::IsEmpty()) << script << ": " << problems.at(0).reason;
    }
    std::string withMusic = mapWith("KNOWN");
    withMusic.insert(1, R"("properties":[{"name":"music","value":"theme.mp3"}],)");
    compile(withMusic);
    ASSERT_EQ(1U, problems.size());
    EXPECT_EQ("music \"theme.mp3\" does not exist", problems[0].reason);
}

TEST_F(MapCompilerTest, WhatIsNoMapIsRefusedWithTheReason) {
    EXPECT_THAT([this] { compile(R"({"type":"map","layers":[)"); },
                testing::Throws<std::string>(HasSubstr("is no JSON: ")));
    EXPECT_THAT([this] { compile("[1, 2]"); }, testing::Throws<std::string>("is no Tiled map"));
    EXPECT_THAT([this] { compile(mapOf(R"({"id":4,"x":"left"})")); },
                testing::Throws<std::string>("object 4: \"x\" must be a number"));
    std::string nested;
    for (int i = 0; i < 1000; ++i) {
        nested += R"({"type":"group","layers":[)";
    }
    EXPECT_ANY_THROW(compile(R"({"type":"map","layers":[)" + nested));
}

TEST_F(MapCompilerTest, ADumpHasALineForEachRecordAndRefusesATornFile) {
    const std::string text = compile(
        mapOf(R"({"id":1,"name":"A BOX","type":"Crate","x":0,"y":0,"width":20,"height":20)" +
              with({{"script", "DELAY 9 SETLOCK A"},
                    {"health", 5},
                    {"dialog", "60 hm"},
                    {"sheetColumns", 2}}) +
              R"(},{"id":2,"name":"A","type":"Trigger","x":90,"y":0,"width":20,"height":20})"));
    const std::string dump = mapc::dumpMap(text);
    EXPECT_THAT(dump, HasSubstr("objects 3\nobject 0 type 0\n"));
    EXPECT_THAT(dump, HasSubstr("sheet rows 2 stepU 0.5 stepV 0.5"));
    EXPECT_THAT(dump, HasSubstr("addition NAME name=A BOX\n"));
    EXPECT_THAT(dump, HasSubstr("addition DELAY steps=9 counter=9 SETLOCK object=A\n"));
    EXPECT_THAT(dump, HasSubstr("addition HealthAdd value=5\n"));
    EXPECT_THAT(dump, HasSubstr("addition DialogAdd once=0 locked=0 text=hm steps=60\n"));
    for (std::size_t size = 0; size + 8 < text.size(); size += 7) {
        EXPECT_THROW(mapc::dumpMap(text.substr(0, size)), std::string) << size;
    }
}
