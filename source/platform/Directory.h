#pragma once

#include <string>
#include <vector>

namespace platform {

/// Appends the bare names of the entries that match a directory and wild card such as "data/*.tga",
/// in the system's order, without "." and "..". False if the directory cannot be read.
bool listDirectory(const std::string& pattern, std::vector<std::string>& names);

bool isDirectory(const std::string& path);

/// True if the directory is there afterwards.
bool makeDirectory(const std::string& path);

} // namespace platform
