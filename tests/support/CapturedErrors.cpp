#include "CapturedErrors.h"

#include <unistd.h>

#include <array>
#include <stdexcept>

CapturedErrors::CapturedErrors() : file(std::tmpfile()), before(dup(STDERR_FILENO)) {
    if (!file || dup2(fileno(file.get()), STDERR_FILENO) == -1) {
        throw std::runtime_error("standard error cannot be captured");
    }
}

CapturedErrors::~CapturedErrors() {
    dup2(before, STDERR_FILENO);
    close(before);
}

std::string CapturedErrors::text() const {
    std::string all;
    std::array<char, 4096> piece{};
    while (true) {
        const ssize_t got =
            pread(fileno(file.get()), piece.data(), piece.size(), static_cast<off_t>(all.size()));
        if (got <= 0) {
            return all;
        }
        all.append(piece.data(), static_cast<std::size_t>(got));
    }
}
