#pragma once

#include <cstdio>
#include <memory>
#include <string>

/// Takes what is written to standard error while it lives. Unlike that of the test library it
/// flushes no file but this one, and so works beside a `Listener`.
class CapturedErrors {
public:
    CapturedErrors();
    ~CapturedErrors();
    CapturedErrors(const CapturedErrors&) = delete;
    CapturedErrors& operator=(const CapturedErrors&) = delete;

    /// All so far.
    std::string text() const;

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> file;
    int before; // descriptor of what standard error was
};
