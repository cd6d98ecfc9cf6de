#pragma once

#include <array>
#include <cstdint>
#include <string>

struct FT_LibraryRec_;
struct FT_FaceRec_;

/// The font's picture: all of ASCII from the blank on and the eighteen Polish letters, each in
/// the cell that the game looks it up in.
class GlyphSheet {
public:
    static constexpr int side = 256; // pixels of the picture
    static constexpr int cell = 16;  // pixels of a cell

    /// Draws all letters. Raises a string when the face cannot be read or lacks a letter.
    explicit GlyphSheet(const std::string& fontFile);

    /// Writes an uncompressed 32-bit TGA, bottom row first. Raises a string when it cannot.
    void save(const std::string& path) const;

private:
    void drawLetter(FT_FaceRec_* face, char32_t letter, int code);
    void addShade();
    using Pixels = std::array<std::uint8_t, std::size_t{side} * side>;

    static std::size_t index(int x, int y) {
        return static_cast<std::size_t>(y) * side + static_cast<std::size_t>(x);
    }
    std::uint8_t& at(int x, int y) { return alpha[index(x, y)]; }

    // Rows from the top down, as the cells are counted.
    Pixels alpha{};
    Pixels tone{}; // of the letters themselves, before the shade
};
