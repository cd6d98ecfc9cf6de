#include "platform/Image.h"

#include "support/TempDirectory.h"

#include <gtest/gtest.h>

using platform::Image;
using platform::readTga;

namespace {

constexpr char colour = 2;
constexpr char colourRuns = 10;
constexpr char topFirst = 0x20;

std::string header(char type, int width, int height, char bits, char flags = 0) {
    std::string bytes(18, '\0');
    bytes[2] = type;
    bytes[12] = static_cast<char>(width & 0xFF);
    bytes[13] = static_cast<char>(width >> 8);
    bytes[14] = static_cast<char>(height & 0xFF);
    bytes[15] = static_cast<char>(height >> 8);
    bytes[16] = bits;
    bytes[17] = flags;
    return bytes;
}

class ImageTest : public testing::Test {
protected:
    bool read(const std::string& bytes) {
        directory.write("a.tga", bytes);
        return readTga(directory.file("a.tga"), image, reason);
    }

    TempDirectory directory;
    Image image;
    std::string reason;
};

} // namespace

TEST_F(ImageTest, RowsComeBottomUpWhereverTheFileBegins) {
    // Two pixels above each other, blue, green, red in the file; the lower one is (3, 2, 1).
    const std::string lower = "\x01\x02\x03";
    const std::string upper = "\x04\x05\x06";
    const std::vector<std::uint8_t> expected{3, 2, 1, 6, 5, 4};
    ASSERT_TRUE(read(header(colour, 1, 2, 24) + lower + upper)) << reason;
    EXPECT_EQ(image.pixels, expected);
    ASSERT_TRUE(read(header(colour, 1, 2, 24, topFirst) + upper + lower)) << reason;
    EXPECT_EQ(image.pixels, expected);
    EXPECT_EQ(image.channels, 3);
    EXPECT_EQ(image.height, 2);
}

TEST_F(ImageTest, RunsAreUnpacked) {
    // A run of three pixels, then one by itself.
    const std::string runs =
        std::string("\x82\x01\x02\x03", 4) + std::string("\x00\x04\x05\x06", 4);
    ASSERT_TRUE(read(header(colourRuns, 4, 1, 24) + runs)) << reason;
    EXPECT_EQ(image.pixels, (std::vector<std::uint8_t>{3, 2, 1, 3, 2, 1, 3, 2, 1, 6, 5, 4}));
    EXPECT_FALSE(read(header(colourRuns, 4, 1, 24) + runs.substr(0, 7)));
    EXPECT_FALSE(read(header(colourRuns, 5, 1, 24) + runs));
}

TEST_F(ImageTest, WhatIsNoWholePictureIsRefusedWithAReason) {
    const std::string good = header(colour, 2, 2, 24) + std::string(12, 'x');
    ASSERT_TRUE(read(good));
    const Image before = image;
    for (std::size_t size = 0; size < good.size(); ++size) {
        EXPECT_FALSE(read(good.substr(0, size))) << size;
        EXPECT_FALSE(reason.empty());
    }
    EXPECT_FALSE(read(header(colour, 0, 2, 24)));
    EXPECT_FALSE(read(header(colour, 8193, 1, 24) + std::string(3 * 8193, 'x')));
    EXPECT_EQ(reason, "too large");
    EXPECT_FALSE(read(header(77, 2, 2, 24) + std::string(12, 'x')));
    EXPECT_FALSE(readTga(directory.file("none.tga"), image, reason));
    EXPECT_FALSE(readTga(directory.path(), image, reason));
    EXPECT_EQ(image.pixels, before.pixels);
}
