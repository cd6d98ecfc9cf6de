#include "Settings.h"

#include "Failure.h"

#include <gtest/gtest.h>

namespace {

template <class T>
std::string failureOf(const std::string& key, const std::string& text) {
    return ::failureOf([&] { getModifier<T>(key, text); });
}

} // namespace

TEST(SettingsReading, AValueIsFoundBehindAnySeparatorAndUpToAnyWhiteSpace) {
    EXPECT_EQ(getModifier<int>("WINDOW_WIDTH", "A 1\r\nWINDOW_WIDTH 1280\r\n"), 1280);
    EXPECT_EQ(getModifier<int>("WINDOW_WIDTH", "WINDOW_WIDTH=-1\n"), -1);
    EXPECT_EQ(getModifier<float>("BRIGHTNESS", "BRIGHTNESS 1.2"), 1.2F);
    EXPECT_EQ(getModifier<std::string>("FILE", "FILE lang.txt rest\r\n"), "lang.txt");
    EXPECT_EQ(getModifier<char>("KEYUP", "KEYUP WX\r\n"), 'W');
    EXPECT_TRUE(getModifier<bool>("ON", "ON 1\r\n"));
    EXPECT_EQ(getModifier<int>("SPEED", "MY_SPEED 3\r\nSPEED 4\r\n"), 3) << "the first wins";
}

TEST(SettingsReading, WhatDoesNotConvertWholeRaisesTheKey) {
    const std::string expected = "bad value in modifier KEY";
    for (const char* text :
         {"OTHER 5\r\n", "KEY", "KEY ", "KEY word\r\n", "KEY 12px\r\n", "KEY 99999999999\r\n"}) {
        EXPECT_EQ(failureOf<int>("KEY", text), expected) << text;
    }
    EXPECT_EQ(failureOf<std::string>("KEY", "KEY \r\nNEXT 4"), expected);
    EXPECT_EQ(failureOf<float>("KEY", "KEY nan\r\n"), expected);
    EXPECT_EQ(failureOf<bool>("KEY", "KEY true\r\n"), expected);
    EXPECT_EQ(failureOf<bool>("KEY", "KEY 2\r\n"), expected);
}

TEST(SettingsWriting, ReplacesTheLineOfTheKeyOrAppendsOne) {
    struct Case {
        const char *before, *after;
    };
    const Case cases[] = {
        {"A 1\r\nKEY old value\r\nB 2\r\n", "A 1\r\nKEY 7\r\nB 2\r\n"},
        {"A 1\r\nKEY 3", "A 1\r\nKEY 7"},
        {"KEY 3\nA 1\n", "KEY 7"}, // without the ends that it knows, the rest is the value
        {"A 1", "A 1\r\nKEY 7"},
    };
    for (const Case& c : cases) {
        std::string text = c.before;
        setModifier("KEY", 7, text);
        EXPECT_EQ(text, c.after);
        EXPECT_EQ(getModifier<int>("KEY", text), 7);
    }
}
