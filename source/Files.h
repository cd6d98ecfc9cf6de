#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Bare names of the directory entries that match a directory and wild card such as "data/*.tga",
/// in the system's order. With nothing to list it prints "Error opening directory" on standard
/// error.
std::vector<std::string> listFiles(const std::string& pattern);

/// The whole file as bytes.
/// @throws std::string path + " - no such file or directory" if it cannot be opened or is a
/// directory. A failure in the middle of the transfer ends the process.
std::string readFile(const std::string& path);

/// Replaces the file whole or not at all: the bytes go to a temporary file beside it, which then
/// takes its name. Raises and ends as `readFile` does; the old file stays in both cases.
void writeFile(const std::string& text, const std::string& path);

/// The same for what the program can go on without: it never ends the process.
/// @throws std::string path + " - " + the system's reason for any failure
void storeFile(const std::string& text, const std::string& path);

/// snappy's raw block format. `uncompress` is false if the data is no such block.
bool uncompress(const char* data, std::size_t size, std::string& out);
void compress(const char* data, std::size_t size, std::string& out);
