#include "Files.h"

#include "platform/AtomicFile.h"
#include "platform/Directory.h"

#include <snappy.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

constexpr std::size_t blockSize = 4096;

[[noreturn]] void throwNotFound(const std::string& path) {
    throw path + " - no such file or directory";
}

[[noreturn]] void endProcess(const char* operation) {
    std::perror(operation);
    std::exit(1);
}

} // namespace

std::vector<std::string> listFiles(const std::string& pattern) {
    std::vector<std::string> names;
    if (!platform::listDirectory(pattern, names) || names.empty()) {
        std::fputs("Error opening directory\n", stderr);
    }
    return names;
}

std::string readFile(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file || platform::isDirectory(path)) {
        throwNotFound(path);
    }
    std::string content;
    std::array<char, blockSize> block;
    while (const std::size_t size = std::fread(block.data(), 1, block.size(), file.get())) {
        content.append(block.data(), size);
    }
    if (std::ferror(file.get()) != 0) {
        endProcess("fread");
    }
    return content;
}

/// False if the file could not be written to its end; the old one stays then.
static bool replaceFile(const std::string& text, const std::string& path) {
    const platform::ReplaceResult result = platform::replaceFile(path, text);
    if (result == platform::ReplaceResult::notOpened) {
        throwNotFound(path);
    }
    return result == platform::ReplaceResult::replaced;
}

void writeFile(const std::string& text, const std::string& path) {
    if (!replaceFile(text, path)) {
        endProcess("fwrite");
    }
}

void storeFile(const std::string& text, const std::string& path) {
    if (!replaceFile(text, path)) {
        throw path + " - " + std::strerror(errno);
    }
}

bool uncompress(const char* data, std::size_t size, std::string& out) {
    return snappy::Uncompress(data, size, &out);
}

void compress(const char* data, std::size_t size, std::string& out) {
    snappy::Compress(data, size, &out);
}
