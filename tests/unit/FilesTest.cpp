#include "Files.h"

#include "Failure.h"
#include "platform/Directory.h"
#include "support/TempDirectory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <sys/resource.h>

using testing::UnorderedElementsAre;

namespace {

/// Writes more than the process may, as on a full disk.
void writeTooMuch(const std::string& path) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limit);
    writeFile(std::string(5000, 'x'), path);
}

} // namespace

TEST(Files, AnyBytesComeBackWhole) {
    const TempDirectory directory;
    const std::string path = directory.file("bytes");
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 100000U}) {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i) {
            bytes[i] = static_cast<char>(i * 7);
        }
        writeFile(bytes, path);
        EXPECT_EQ(readFile(path), bytes);
    }
}

TEST(Files, WhatCannotBeOpenedIsRaisedWithItsPath) {
    const TempDirectory directory;
    const std::string missing = directory.file("none/such");
    const std::string message = missing + " - no such file or directory";
    EXPECT_EQ(failureOf([&] { readFile(missing); }), message);
    EXPECT_EQ(failureOf([&] { writeFile("x", missing); }), message);
    EXPECT_NE(failureOf([&] { writeFile("x", directory.path()); }), "");
    EXPECT_NE(failureOf([&] { writeFile("x", "/dev/full"); }), "");
}

TEST(Files, AReplacedFileKeepsItsRightsAndLeavesNothingBesideIt) {
    const TempDirectory directory;
    const std::string path = directory.file("config.txt");
    directory.write("config.txt", "old");
    const auto rights = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(path, rights);
    writeFile("new", path);
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(std::filesystem::status(path).permissions(), rights);
    EXPECT_THAT(listFiles(directory.file("*")), UnorderedElementsAre("config.txt"));
}

TEST(FilesDeathTest, AWriteThatBreaksOffEndsTheProcessAndKeepsTheOldFile) {
    const TempDirectory directory;
    directory.write("save", "old");
    EXPECT_EXIT(writeTooMuch(directory.file("save")), testing::ExitedWithCode(1), "fwrite");
    EXPECT_EQ(readFile(directory.file("save")), "old");
    EXPECT_THAT(listFiles(directory.file("*")), UnorderedElementsAre("save"));
}

TEST(Files, AListingMatchesTheWildCardAndHasDirectoriesToo) {
    const TempDirectory directory;
    for (const char* name : {"a.tga", "b.tga", "c.tg", "d.ogg", ".e.tga"}) {
        directory.write(name, "");
    }
    EXPECT_TRUE(platform::makeDirectory(directory.file("sub.tga")));
    EXPECT_TRUE(platform::makeDirectory(directory.file("sub.tga"))) << "it is there";
    EXPECT_FALSE(platform::makeDirectory(directory.file("a.tga"))) << "a file is in the way";
    EXPECT_THAT(listFiles(directory.file("*.tga")),
                UnorderedElementsAre("a.tga", "b.tga", ".e.tga", "sub.tga"));
    EXPECT_THAT(listFiles(directory.file("*.???")),
                UnorderedElementsAre("a.tga", "b.tga", "d.ogg", ".e.tga", "sub.tga"));
}

TEST(Compression, TextsComeBackAndGarbageIsRefused) {
    for (const std::string& text : {std::string(), std::string("abc"), std::string(100000, 'a')}) {
        std::string packed = "left over";
        compress(text.data(), text.size(), packed);
        std::string unpacked = "left over";
        ASSERT_TRUE(uncompress(packed.data(), packed.size(), unpacked));
        EXPECT_EQ(unpacked, text);
    }
    std::string ignored;
    const std::string garbage = "\xFF\xFF\xFF\xFF\xFF garbage";
    EXPECT_FALSE(uncompress(garbage.data(), garbage.size(), ignored));
    EXPECT_FALSE(uncompress("", 0, ignored));
}
