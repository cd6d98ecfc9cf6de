#include "TextStream.h"

#include "Failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <sstream>

namespace {

template <class T>
bool converts(const std::string& text) {
    return failureOf([&text] { TextReader(text).read<T>(); }).empty();
}

std::string messageOf(const std::string& text, const char* record) {
    TextReader reader(text);
    reader.setRecord(record);
    return failureOf([&reader] {
        reader.read<int>();
        reader.read<int>();
    });
}

/// What a standard stream makes of a text that is one token.
template <class T>
bool streamConverts(const std::string& text, T& value) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    stream >> value;
    return !stream.fail() && stream.peek() == std::istringstream::traits_type::eof();
}

template <class T>
void expectLikeAStream(const std::string& text) {
    T expected{};
    const bool accepted = streamConverts(text, expected);
    ASSERT_EQ(converts<T>(text), accepted) << text;
    if (accepted) {
        EXPECT_EQ(TextReader(text).read<T>(), expected) << text;
    }
}

} // namespace

TEST(TextReading, ValuesOfAllTypesFollowEachOtherAcrossAnyWhiteSpace) {
    TextReader reader("12 -7\t4000000000\r\n  9000000000 1.5e2\v1 \f0 word");
    EXPECT_EQ(reader.read<int>(), 12);
    EXPECT_EQ(reader.read<int>(), -7);
    EXPECT_EQ(reader.read<unsigned>(), 4000000000U);
    EXPECT_EQ(reader.read<std::int64_t>(), 9000000000);
    EXPECT_EQ(reader.read<float>(), 150.0F);
    EXPECT_TRUE(reader.read<bool>());
    EXPECT_FALSE(reader.read<bool>());
    EXPECT_EQ(reader.read<std::string>(), "word");
    EXPECT_THROW(reader.read<std::string>(), std::string);
    reader.rewind();
    EXPECT_EQ(reader.read<int>(), 12);
}

TEST(TextReading, OddNumbersAreTakenAsAStreamTakesThem) {
    for (const char* text : {"+5", "-5", "+-5", "-+5", "++5", "+", "-", "", "2147483648", "5x",
                             "0x10", "007", "-4294967295", "-4294967296", "4294967296", "1.5"}) {
        expectLikeAStream<int>(text);
        expectLikeAStream<unsigned>(text);
    }
    for (const char* text : {"+1.5", "-.5", "5.", ".", "+-1", "1e5", "1e-50", "1e39", "-1e39",
                             "1e-40", "1,5", "1.5.5", "3e"}) {
        expectLikeAStream<float>(text);
    }
}

TEST(TextReading, OnlyFiniteNumbersAndPlainFlagsAreAccepted) {
    for (const char* text : {"inf", "-inf", "+inf", "nan", "infinity", "nan(1)"}) {
        EXPECT_FALSE(converts<float>(text)) << text;
    }
    for (const char* text : {"2", "true", "-1", "10", ""}) {
        EXPECT_FALSE(converts<bool>(text)) << text;
    }
}

TEST(TextReading, AFailureNamesTheRecordAndThePlaceOfTheValue) {
    EXPECT_EQ(messageOf("15 bad", "joint"), "file corrupted: joint at byte 3");
    EXPECT_EQ(messageOf("15  7x ", "joint"), "file corrupted: joint at byte 4");
    EXPECT_EQ(messageOf("15", "light"), "file corrupted: light at byte 2");
}

TEST(TextReading, CountsThatTheTextCannotHoldAreRefused) {
    EXPECT_EQ(TextReader("2 1 1").readCount(), 2U);
    EXPECT_THROW(TextReader("3 1 1").readCount(), std::string);
    EXPECT_THROW(TextReader("4294967295 1 1").readCount(), std::string);
    EXPECT_THROW(TextReader("-1 1 1").readCount(), std::string);
}

TEST(CountedStrings, ComeBackUnchangedWithBlanksAndLineEnds) {
    TextWriter writer;
    writer.writeCounted("two words\r\nand a line ");
    writer.writeCounted("");
    writer << 5;
    TextReader reader(writer.text());
    EXPECT_EQ(readCountedString(reader), "two words\r\nand a line ");
    EXPECT_EQ(readCountedString(reader), "");
    EXPECT_EQ(reader.read<int>(), 5);
}

TEST(CountedStrings, LongerThanTheTextAreRefused) {
    for (const char* text : {"4 abc", "5", "-1 abc", "4294967295 a"}) {
        TextReader reader(text);
        EXPECT_THROW(readCountedString(reader), std::string) << text;
    }
}

TEST(TextWriting, FloatsOfAnyBitsLookAsAStreamPrintsThemAndFiniteOnesReadBack) {
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        const std::uint32_t bits = random();
        float value = 0.0F;
        std::memcpy(&value, &bits, sizeof value);
        std::ostringstream stream;
        stream << value << ' ';
        TextWriter writer;
        writer << value;
        ASSERT_EQ(writer.text(), stream.str());
        if (std::isfinite(value) && std::abs(value) < 3e38F) {
            const float again = TextReader(writer.text()).read<float>();
            ASSERT_NEAR(again, value, std::abs(value) * 1e-5);
        }
    }
}
