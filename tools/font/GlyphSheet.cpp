#include "GlyphSheet.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_GLYPH_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cmath>
#include <fstream>
#include <memory>

namespace {

// Sizes in pixels of the picture; the face's own widths are stretched by width over height.
constexpr float letterHeight = 11.6f;
constexpr float letterWidth = 13.9f;
constexpr float weight = 0.30f;  // added to all strokes: the plain face is thin in white on black
constexpr float baseline = 4.6f; // from the bottom of the cell
constexpr float highest = 14.5f; // nothing may stand above, from the bottom of the cell

// The codes under which the game's texts hold the Polish letters.
struct PolishLetter {
    char32_t letter;
    int code;
};

constexpr PolishLetter polish[] = {
    {U'ę', 0xD6}, {U'ą', 0xE0}, {U'ó', 0xE3}, {U'ś', 0xEA}, {U'ł', 0xE9}, {U'ż', 0xED},
    {U'ź', 0xDA}, {U'ć', 0xD3}, {U'ń', 0xE1}, {U'Ę', 0xB6}, {U'Ą', 0xC0}, {U'Ó', 0xC3},
    {U'Ś', 0xCA}, {U'Ł', 0xC9}, {U'Ż', 0xCD}, {U'Ź', 0xBA}, {U'Ć', 0xB3}, {U'Ń', 0xC1},
};

struct CellPlace {
    int column, row; // from the top left
};

// The game counts from the blank with a signed byte and divides towards zero; what comes out
// negative is wrapped by the texture unit.
CellPlace cellOf(int code) {
    int c = (code < 128 ? code : code - 256) - ' ';
    constexpr int across = GlyphSheet::side / GlyphSheet::cell;
    return {(c % across + across) % across, (c / across + across) % across};
}

FT_F26Dot6 in64ths(float pixels) {
    return std::lround(pixels * 64);
}

// Centres the letter in its cell and lowers an accent that would stand out of it.
void place(FT_Outline& outline, FT_Pos advance) {
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    FT_Pos room = in64ths(highest - baseline);
    if (box.yMax > room) {
        FT_Matrix squeeze{0x10000, 0, 0, room * 0x10000 / box.yMax};
        FT_Outline_Transform(&outline, &squeeze);
    }
    FT_Outline_Translate(&outline, (in64ths(GlyphSheet::cell) - advance) / 2, in64ths(baseline));
}

} // namespace

GlyphSheet::GlyphSheet(const std::string& fontFile) {
    FT_Library started = nullptr;
    if (FT_Init_FreeType(&started) != 0) {
        throw std::string("FreeType does not start");
    }
    std::unique_ptr<FT_LibraryRec_, FT_Error (*)(FT_Library)> library(started, FT_Done_FreeType);
    FT_Face opened = nullptr;
    if (FT_New_Face(library.get(), fontFile.c_str(), 0, &opened) != 0) {
        throw "cannot read the font " + fontFile;
    }
    std::unique_ptr<FT_FaceRec_, FT_Error (*)(FT_Face)> face(opened, FT_Done_Face);
    FT_Set_Char_Size(face.get(), in64ths(letterWidth), in64ths(letterHeight), 72, 72);
    for (int code = ' '; code <= '~'; ++code) {
        drawLetter(face.get(), static_cast<char32_t>(code), code);
    }
    for (const PolishLetter& row : polish) {
        drawLetter(face.get(), row.letter, row.code);
    }
    addShade();
}

void GlyphSheet::drawLetter(FT_Face face, char32_t letter, int code) {
    FT_UInt glyph = FT_Get_Char_Index(face, letter);
    constexpr FT_Int32 flags = FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP;
    if (glyph == 0 || FT_Load_Glyph(face, glyph, flags) != 0) {
        throw "the font lacks the letter with the code " + std::to_string(code);
    }
    FT_Outline_Embolden(&face->glyph->outline, in64ths(weight));
    FT_Outline_Translate(&face->glyph->outline, -in64ths(weight) / 2, -in64ths(weight) / 2);
    place(face->glyph->outline, face->glyph->advance.x);
    std::array<unsigned char, std::size_t{cell} * cell> pixels{};
    FT_Bitmap bitmap{};
    bitmap.rows = bitmap.width = cell;
    bitmap.pitch = cell;
    bitmap.buffer = pixels.data();
    bitmap.num_grays = 256;
    bitmap.pixel_mode = FT_PIXEL_MODE_GRAY;
    FT_Outline_Get_Bitmap(face->glyph->library, &face->glyph->outline, &bitmap);
    CellPlace at0 = cellOf(code);
    for (int y = 0; y < cell; ++y) {
        for (int x = 0; x < cell; ++x) {
            at(at0.column * cell + x, at0.row * cell + y) =
                pixels[static_cast<std::size_t>(y) * cell + static_cast<std::size_t>(x)];
        }
    }
}

// A faint dark shade about each letter keeps white text readable on bright ground.
void GlyphSheet::addShade() {
    constexpr float strength = 0.55f;
    tone = alpha;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            int most = 0;
            for (int j = -1; j <= 1; ++j) {
                for (int i = -1; i <= 1; ++i) {
                    // A letter's shade stays inside of its own cell.
                    int nx = x + i, ny = y + j;
                    if (nx >= 0 && ny >= 0 && nx / cell == x / cell && ny / cell == y / cell &&
                        nx < side && ny < side) {
                        most = std::max<int>(most, tone[index(nx, ny)]);
                    }
                }
            }
            int letter = at(x, y);
            int shade = static_cast<int>(strength * static_cast<float>(most));
            at(x, y) = static_cast<std::uint8_t>(std::max(letter, shade));
        }
    }
}

void GlyphSheet::save(const std::string& path) const {
    // Type 2 is uncompressed true colour; the last byte says 8 bits of alpha, origin bottom left.
    std::string bytes = {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 1, 32, 8};
    for (int y = side - 1; y >= 0; --y) {
        for (int x = 0; x < side; ++x) {
            std::size_t i = index(x, y);
            char grey = static_cast<char>(alpha[i] == 0 ? 0 : tone[i] * 255 / alpha[i]);
            bytes += {grey, grey, grey, static_cast<char>(alpha[i])};
        }
    }
    std::ofstream file(path, std::ios::binary);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        throw "cannot write " + path;
    }
}
