#include "Manifest.h"

#include <fstream>
#include <map>
#include <sstream>

std::vector<SoundRow> readManifest(const std::string& path) {
    static const std::map<std::string, Ending> endings{
        {"once", Ending::once}, {"loop", Ending::loop}, {"wrap", Ending::wrap}};
    std::ifstream manifest(path);
    if (!manifest) {
        throw "cannot read " + path;
    }
    std::vector<SoundRow> rows;
    int number = 0;
    for (std::string line; std::getline(manifest, line);) {
        ++number;
        if (line.empty() || line[0] == '#') {
            continue;
        }
        SoundRow row;
        std::string ending;
        std::istringstream words(line);
        words >> row.file >> row.recipe >> row.seconds >> row.channels >> row.peak >> row.seed >>
            ending;
        constexpr float longest = 600;
        if (!words || row.seconds <= 0 || row.seconds > longest || row.channels < 1 ||
            row.channels > 2 || row.peak > 0 || !endings.contains(ending)) {
            throw path + ":" + std::to_string(number) + ": not a row of the manifest";
        }
        row.ending = endings.at(ending);
        rows.push_back(row);
    }
    return rows;
}
