#include "Image.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>

// The decoder lives in this file alone. Its warnings are its own.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wnull-dereference"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_NO_HDR
#define STBI_NO_LINEAR
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

namespace platform {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t headerSize = 18;
constexpr std::size_t maxFileSize = std::size_t{1} << 29; // above any picture of allowed size
constexpr unsigned runLengthFlag = 8;                     // of the image type

struct Header {
    unsigned type;
    std::size_t dataOffset; // behind the identification and the palette
    int width;
    int height;
    std::size_t pixelBytes;
};

unsigned readWord(const Bytes& file, std::size_t offset) {
    return file[offset] | static_cast<unsigned>(file[offset + 1]) << 8U;
}

Header readHeader(const Bytes& file) {
    const std::size_t paletteBytes =
        file[1] == 0 ? 0 : readWord(file, 5) * ((file[7] + std::size_t{7}) / 8);
    return {file[2], headerSize + file[0] + paletteBytes, static_cast<int>(readWord(file, 12)),
            static_cast<int>(readWord(file, 14)), (file[16] + std::size_t{7}) / 8};
}

// The decoder makes up what a file lacks, so its packets are counted here first.
bool hasAllRuns(const Bytes& file, const Header& header, std::size_t pixels) {
    std::size_t offset = header.dataOffset;
    std::size_t seen = 0;
    while (seen < pixels) {
        if (offset >= file.size()) {
            return false;
        }
        const std::size_t count = (file[offset] & 0x7FU) + 1U;
        const bool repeated = (file[offset] & 0x80U) != 0;
        offset += 1 + (repeated ? 1 : count) * header.pixelBytes;
        seen += count;
    }
    return offset <= file.size();
}

bool isComplete(const Bytes& file, const Header& header) {
    const std::size_t pixels =
        static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.height);
    if ((header.type & runLengthFlag) != 0) {
        return hasAllRuns(file, header, pixels);
    }
    return header.dataOffset + pixels * header.pixelBytes <= file.size();
}

std::optional<Bytes> readBytes(const std::string& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error); // fails for a directory
    std::ifstream stream(path, std::ios::binary);
    if (error || size > maxFileSize || !stream) {
        return std::nullopt;
    }
    Bytes bytes(size);
    stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

const char* findFault(const Bytes& file) {
    if (file.size() < headerSize) {
        return "cut short";
    }
    const Header header = readHeader(file);
    if (header.width == 0 || header.height == 0) {
        return "no pixels";
    }
    if (header.width > maxImageSize || header.height > maxImageSize) {
        return "too large";
    }
    return isComplete(file, header) ? nullptr : "cut short";
}

// The decoder gives the top row first.
void storeFlipped(const std::uint8_t* rows, Image& image) {
    const std::size_t rowBytes =
        static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.channels);
    image.pixels.resize(rowBytes * static_cast<std::size_t>(image.height));
    std::uint8_t* target = image.pixels.data() + image.pixels.size();
    for (int y = 0; y < image.height; ++y) {
        target -= rowBytes;
        std::memcpy(target, rows, rowBytes);
        rows += rowBytes;
    }
}

} // namespace

bool readTga(const std::string& path, Image& image, std::string& reason) {
    const std::optional<Bytes> file = readBytes(path);
    if (!file) {
        reason = "cannot be read";
        return false;
    }
    if (const char* fault = findFault(*file)) {
        reason = fault;
        return false;
    }
    const auto size = static_cast<int>(file->size());
    int width = 0;
    int height = 0;
    int channels = 0;
    stbi_info_from_memory(file->data(), size, &width, &height, &channels);
    const int wanted = channels == 2 ? 4 : 0; // grey with alpha has no texture format of its own
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> rows(
        stbi_load_from_memory(file->data(), size, &width, &height, &channels, wanted),
        stbi_image_free);
    if (!rows) {
        reason = stbi_failure_reason();
        return false;
    }
    image.width = width;
    image.height = height;
    image.channels = wanted != 0 ? wanted : channels;
    storeFlipped(rows.get(), image);
    return true;
}

} // namespace platform
