// Draws the game's font picture from a TrueType face:
//   font_builder FONT.ttf OUT.tga
//
// The picture is 256 by 256 pixels, white with the letters in alpha, in 16 by 16 cells. The game
// shows the middle 13 pixels of a cell on a square that is wider than the pen moves: at the sizes
// of tips and menus a letter has 8.7 to 10.5 pixels of the cell for itself. So a face of fixed
// pitch is taken and drawn a little wider than it is.

#include "GlyphSheet.h"

#include <iostream>
#include <string>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: font_builder FONT.ttf OUT.tga\n";
        return 2;
    }
    try {
        GlyphSheet(argv[1]).save(argv[2]);
    } catch (const std::string& reason) {
        std::cerr << "font_builder: " << reason << '\n';
        return 1;
    }
    return 0;
}
