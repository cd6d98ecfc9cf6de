// Makes a language file of the game from one that people edit:
//   language_builder IN.txt OUT.txt

#include "LanguageFile.h"

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

void build(const std::string& in, const std::string& out) {
    std::ifstream source(in, std::ios::binary);
    if (!source) {
        throw "cannot read " + in;
    }
    std::ostringstream utf8;
    utf8 << source.rdbuf();
    std::string bytes = LanguageFile(in, utf8.str()).windows1250();
    std::ofstream file(out, std::ios::binary);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        throw "cannot write " + out;
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: language_builder IN.txt OUT.txt\n";
        return 2;
    }
    try {
        build(argv[1], argv[2]);
    } catch (const std::string& reason) {
        std::cerr << "language_builder: " << reason << '\n';
        return 1;
    }
    return 0;
}
