// Makes the sounds and the music of a manifest:
//   sound_builder MANIFEST OUTDIR [FILE...]
// Without file names it makes all of them. And measures what is there:
//   sound_builder --measure FILE...

#include "Manifest.h"
#include "Measures.h"
#include "Recipes.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace {

void make(const SoundRow& row, const std::string& folder) {
    auto recipe = std::ranges::find(recipes(), row.recipe, &Recipe::name);
    if (recipe == recipes().end()) {
        throw row.file + ": there is no recipe " + row.recipe;
    }
    Clip clip;
    float seconds = row.seconds + overlapOf(row.seconds, row.ending);
    for (int channel = 0; channel < row.channels; ++channel) {
        float side = row.channels == 1 ? 0 : 2 * static_cast<float>(channel) - 1;
        clip.channels.push_back(recipe->render({seconds, row.seed, side}));
    }
    finish(clip, row.seconds, row.ending, row.peak);
    save(clip, folder + "/" + row.file);
}

float decibels(float level) {
    return 20 * std::log10(std::max(level, 1e-6f));
}

void printMeasures(const std::string& path) {
    Measures m = measure(load(path));
    std::string name = path.substr(path.rfind('/') + 1);
    std::cout << name << ": " << m.seconds << " s, peak " << decibels(m.peak) << " dB, loudness "
              << decibels(m.loudness) << " dB, quietest " << decibels(m.quietest) << " dB, offset "
              << m.offset << ", ends " << m.ends << ", seam " << m.seam << " of " << m.largestStep
              << ", centroid " << m.centroid << " Hz\n";
}

void build(const std::vector<std::string>& arguments) {
    if (arguments.size() < 2) {
        throw std::string("usage: sound_builder MANIFEST OUTDIR [FILE...]\n"
                          "       sound_builder --measure FILE...");
    }
    if (arguments[0] == "--measure") {
        std::for_each(arguments.begin() + 1, arguments.end(), printMeasures);
        return;
    }
    std::vector<SoundRow> rows = readManifest(arguments[0]);
    if (arguments.size() == 2) {
        for (const SoundRow& row : rows) {
            make(row, arguments[1]);
        }
    }
    for (std::size_t i = 2; i < arguments.size(); ++i) {
        auto row = std::ranges::find(rows, arguments[i], &SoundRow::file);
        if (row == rows.end()) {
            throw arguments[0] + ": no row for " + arguments[i];
        }
        make(*row, arguments[1]);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        build({argv + 1, argv + argc});
    } catch (const std::string& reason) {
        std::cerr << "sound_builder: " << reason << '\n';
        return 1;
    }
    return 0;
}
