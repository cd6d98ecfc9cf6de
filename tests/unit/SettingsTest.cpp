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
}

TEST(SettingsReading, TheFirstOccurrenceOfTheKeyWinsEvenInsideAWord) {
    EXPECT_EQ(getModifier<int>("SPEED", "MY_SPEED 3\r\nSPEED 4\r\n"), 3);
}

TEST(SettingsReading, WhatDoesNotConvertWholeRaisesTheKey) {
    const std::string expected = "bad value in modifier KEY";
    EXPECT_EQ(failureOf<int>("KEY", "OTHER 5\r\n"), expected);
    EXPECT_EQ(failureOf<int>("KEY", "KEY"), expected);
    EXPECT_EQ(failureOf<int>("KEY", "KEY "), expected);
    EXPECT_EQ(failureOf<std::string>("KEY", "KEY \r\nNEXT 4"), expected);
    EXPECT_EQ(failureOf<int>("KEY", "KEY word\r\n"), expected);
    EXPECT_EQ(failureOf<int>("KEY", "KEY 12px\r\n"), expected);
    EXPECT_EQ(failureOf<int>("KEY", "KEY 99999999999\r\n"), expected);
    EXPECT_EQ(failureOf<float>("KEY", "KEY nan\r\n"), expected);
    EXPECT_EQ(failureOf<bool>("KEY", "KEY true\r\n"), expected);
    EXPECT_EQ(failureOf<bool>("KEY", "KEY 2\r\n"), expected);
}

TEST(SettingsWriting, ReplacesTheLineOfTheKeyOnly) {
    std::string text = "A 1\r\nKEY old value\r\nB 2\r\n";
    setModifier("KEY", 7, text);
    EXPECT_EQ(text, "A 1\r\nKEY 7\r\nB 2\r\n");
    setModifier("B", 'x', text);
    EXPECT_EQ(text, "A 1\r\nKEY 7\r\nB x\r\n");
}

TEST(SettingsWriting, WithoutALineEndBehindTheKeyReplacesTheRestOfTheText) {
    std::string last = "A 1\r\nKEY 3";
    setModifier("KEY", 4, last);
    EXPECT_EQ(last, "A 1\r\nKEY 4");
    std::string unixEnds = "KEY 3\nA 1\n";
    setModifier("KEY", 4, unixEnds);
    EXPECT_EQ(unixEnds, "KEY 4");
}

TEST(SettingsWriting, AMissingKeyIsAppendedOnceAndReadsBack) {
    std::string text = "A 1";
    setModifier("KEY", std::string("first"), text);
    EXPECT_EQ(text, "A 1\r\nKEY first");
    setModifier("KEY", std::string("second"), text);
    EXPECT_EQ(text, "A 1\r\nKEY second");
    EXPECT_EQ(getModifier<std::string>("KEY", text), "second");
}
