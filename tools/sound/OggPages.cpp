#include "OggPages.h"

#include <fstream>
#include <numeric>
#include <sstream>
#include <string_view>

namespace {

constexpr std::size_t streamAt = 14, checksumAt = 22, segmentsAt = 26, headerSize = 27;

void put(std::string& bytes, std::size_t at, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[at + i] = static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

std::uint32_t checksum(std::string_view page) {
    std::uint32_t sum = 0;
    for (char c : page) {
        sum ^= static_cast<std::uint32_t>(static_cast<unsigned char>(c)) << 24;
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum << 1 ^ (sum >> 31 != 0 ? 0x04C11DB7U : 0U);
        }
    }
    return sum;
}

// The page's header, the table of its segments' sizes, and the segments.
std::size_t pageSize(std::string_view bytes) {
    if (bytes.size() < headerSize || !bytes.starts_with("OggS")) {
        return 0;
    }
    std::string_view table =
        bytes.substr(headerSize, static_cast<unsigned char>(bytes[segmentsAt]));
    auto grow = [](std::size_t sum, char size) { return sum + static_cast<unsigned char>(size); };
    std::size_t size = std::accumulate(table.begin(), table.end(), headerSize + table.size(), grow);
    return size <= bytes.size() ? size : 0;
}

} // namespace

void numberOggStream(const std::string& path, std::uint32_t number) {
    std::ostringstream all;
    all << std::ifstream(path, std::ios::binary).rdbuf();
    std::string bytes = all.str();
    for (std::size_t at = 0, size = 0; at < bytes.size(); at += size) {
        std::string_view rest = std::string_view(bytes).substr(at);
        size = pageSize(rest);
        if (size == 0) {
            throw path + ": not an OGG file";
        }
        put(bytes, at + streamAt, number);
        put(bytes, at + checksumAt, 0);
        put(bytes, at + checksumAt, checksum(rest.substr(0, size)));
    }
    std::ofstream(path, std::ios::binary) << bytes;
}
