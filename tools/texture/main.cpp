// Paints the pictures of a manifest:
//   texture_builder MANIFEST OUTDIR [FILE...]
// Without file names it paints all of them.

#include "Recipes.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Row {
    std::string file, recipe, repeat;
    int width = 0, height = 0;
    std::uint32_t seed = 0;
};

std::vector<Row> readManifest(const std::string& path) {
    std::ifstream manifest(path);
    if (!manifest) {
        throw "cannot read " + path;
    }
    std::vector<Row> rows;
    int number = 0;
    for (std::string line; std::getline(manifest, line);) {
        ++number;
        if (line.empty() || line[0] == '#') {
            continue;
        }
        Row row;
        std::istringstream words(line);
        words >> row.file >> row.recipe >> row.width >> row.height >> row.seed >> row.repeat;
        constexpr int largest = 4096;
        if (!words || row.width < 1 || row.height < 1 || row.width > largest ||
            row.height > largest) {
            throw path + ":" + std::to_string(number) + ": not a row of the manifest";
        }
        rows.push_back(row);
    }
    return rows;
}

void paint(const Row& row, const std::string& folder) {
    auto isNamed = [&](const Recipe& recipe) { return recipe.name == row.recipe; };
    auto recipe = std::ranges::find_if(recipes(), isNamed);
    if (recipe == recipes().end()) {
        throw row.file + ": there is no recipe " + row.recipe;
    }
    Canvas canvas(row.width, row.height);
    recipe->paint(canvas, row.seed);
    canvas.save(folder + "/" + row.file);
}

void build(const std::vector<std::string>& arguments) {
    if (arguments.size() < 2) {
        throw std::string("usage: texture_builder MANIFEST OUTDIR [FILE...]");
    }
    std::vector<Row> rows = readManifest(arguments[0]);
    if (arguments.size() == 2) {
        for (const Row& row : rows) {
            paint(row, arguments[1]);
        }
    }
    for (std::size_t i = 2; i < arguments.size(); ++i) {
        auto row = std::ranges::find(rows, arguments[i], &Row::file);
        if (row == rows.end()) {
            throw arguments[0] + ": no row for " + arguments[i];
        }
        paint(*row, arguments[1]);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        build({argv + 1, argv + argc});
    } catch (const std::string& reason) {
        std::cerr << "texture_builder: " << reason << '\n';
        return 1;
    }
    return 0;
}
