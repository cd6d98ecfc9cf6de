#include "AtomicFile.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// A rename would also replace what its owner has protected, or a device; opening for writing fails.
bool mayReplace(const std::string& path, mode_t& mode) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return errno == ENOENT;
    }
    mode = status.st_mode & 0777U;
    return S_ISREG(status.st_mode) && access(path.c_str(), W_OK) == 0;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool writeAndClose(int file, std::string_view bytes) {
    const bool written = writeAll(file, bytes) && fsync(file) == 0;
    const int reason = errno;
    const bool closed = close(file) == 0;
    if (!written) {
        errno = reason;
    }
    return written && closed;
}

} // namespace

ReplaceResult replaceFile(const std::string& path, std::string_view bytes) {
    mode_t mode = 0666;
    if (!mayReplace(path, mode)) {
        return ReplaceResult::notOpened;
    }
    // Two programs may share a folder: each has a file of its own to fill.
    const std::string temporary = path + "." + std::to_string(getpid()) + ".new";
    const int file =
        open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, mode);
    if (file < 0) {
        return ReplaceResult::notOpened;
    }
    if (!writeAndClose(file, bytes) || std::rename(temporary.c_str(), path.c_str()) != 0) {
        const int reason = errno;
        unlink(temporary.c_str());
        errno = reason;
        return ReplaceResult::failed;
    }
    return ReplaceResult::replaced;
}

} // namespace platform
