#include "TempDirectory.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

TempDirectory::TempDirectory() {
    const std::string replaced(6, 'X'); // by what makes the name new
    directory = (std::filesystem::temp_directory_path() / ("tolmere-" + replaced)).string();
    if (mkdtemp(directory.data()) == nullptr) {
        throw std::runtime_error("no temporary directory " + directory);
    }
}

TempDirectory::~TempDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(directory, ignored);
}

void TempDirectory::write(const std::string& name, const std::string& bytes) const {
    std::ofstream stream(file(name), std::ios::binary);
    stream << bytes;
    if (!stream.flush()) {
        throw std::runtime_error("cannot write " + file(name));
    }
}
