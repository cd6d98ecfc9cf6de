#pragma once

#include <string>

/// A fresh directory in the system's place for such; goes with all that is in it.
class TempDirectory {
public:
    TempDirectory();
    ~TempDirectory();
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;

    const std::string& path() const { return directory; } ///< Absolute, without a slash at its end.
    std::string file(const std::string& name) const { return directory + "/" + name; }
    /// Puts a file there, byte for byte.
    void write(const std::string& name, const std::string& bytes) const;

private:
    std::string directory;
};
