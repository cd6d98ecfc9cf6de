#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

/// A picture in memory, rows from the bottom up, without padding.
struct Image {
    int width = 0;
    int height = 0;
    int channels = 0; ///< Bytes a pixel: 1 grey, 3 colour, 4 colour and alpha.
    std::vector<std::uint8_t> pixels;
};

constexpr int maxImageSize = 8192; ///< Pixels on a side; what graphics drivers take everywhere.

/// Reads a TGA file. False, with a reason for people, if the file is missing, cut short, too large
/// or of a kind that cannot be decoded; the image is then unchanged.
bool readTga(const std::string& path, Image& image, std::string& reason);

} // namespace platform
