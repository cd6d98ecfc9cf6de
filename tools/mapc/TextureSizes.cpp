#include "TextureSizes.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace mapc {

bool TextureSizes::exists(const std::string& fileName) const {
    std::error_code ignored;
    return std::filesystem::is_regular_file(directory + "/" + fileName, ignored);
}

TextureSize TextureSizes::sizeOf(const std::string& fileName) {
    const auto [entry, isNew] = sizes.try_emplace(fileName);
    if (isNew && isKnown()) {
        std::ifstream file(directory + "/" + fileName, std::ios::binary);
        std::array<char, 18> header{};
        const auto read16 = [&header](std::size_t at) {
            return static_cast<float>(static_cast<unsigned char>(header[at]) +
                                      256 * static_cast<unsigned char>(header[at + 1]));
        };
        if (file.read(header.data(), header.size()) && read16(12) > 0.0F && read16(14) > 0.0F) {
            entry->second = {read16(12), read16(14)};
        }
    }
    return entry->second;
}

} // namespace mapc
