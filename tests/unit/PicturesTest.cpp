#include "platform/Image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Picture {
    std::string file, recipe, repeat;
    int width = 0, height = 0;
    platform::Image image;

    int channel(int x, int y, int i) const {
        return image.pixels[static_cast<std::size_t>((y * width + x) * 4 + i)];
    }

    /// How much two neighbouring or wrapped columns (or rows) differ on average, per channel.
    double columnsDiffer(int a, int b) const {
        return differ(height, [&](int n, int i) { return channel(a, n, i) - channel(b, n, i); });
    }
    double rowsDiffer(int a, int b) const {
        return differ(width, [&](int n, int i) { return channel(n, a, i) - channel(n, b, i); });
    }
    template <class Difference>
    static double differ(int length, Difference difference) {
        double sum = 0;
        for (int n = 0; n < length * 4; ++n) {
            sum += std::abs(difference(n / 4, n % 4));
        }
        return sum / length / 4;
    }
};

std::vector<Picture> manifest() {
    std::ifstream rows(TOLMERE_CONTENT "/textures.txt");
    std::vector<Picture> pictures;
    for (std::string line; std::getline(rows, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        Picture p;
        unsigned seed = 0;
        std::istringstream(line) >> p.file >> p.recipe >> p.width >> p.height >> seed >> p.repeat;
        std::string reason;
        EXPECT_TRUE(platform::readTga(TOLMERE_GAME_DIRECTORY "/data/" + p.file, p.image, reason))
            << reason;
        pictures.push_back(std::move(p));
    }
    return pictures;
}

} // namespace

TEST(PicturesTest, EveryPictureOfTheManifestIsThereAndPainted) {
    const std::vector<Picture> pictures = manifest();
    EXPECT_GE(pictures.size(), 27U);
    for (const Picture& p : pictures) {
        ASSERT_EQ(p.image.width, p.width) << p.file;
        ASSERT_EQ(p.image.height, p.height) << p.file;
        if (p.recipe == "white") {
            continue;
        }
        // Where there is enough light to see, a row of like pixels is the mark of a flat recipe.
        int longest = 0;
        for (int y = 0; y < p.height; ++y) {
            for (int x = 1, run = 0; x < p.width; ++x) {
                bool same = true;
                int light = 0;
                for (int i = 0; i < 4; ++i) {
                    same = same && p.channel(x, y, i) == p.channel(x - 1, y, i);
                    light += i < 3 ? p.channel(x, y, i) * p.channel(x, y, 3) / 255 : 0;
                }
                run = same && light > 60 ? run + 1 : 0;
                longest = std::max(longest, run);
            }
        }
        EXPECT_LT(longest, 40) << p.file;
    }
}

TEST(PicturesTest, PicturesThatTileMeetThemselvesAtTheirEdges) {
    // Joints and shaded edges are steps too, so the seam is held against the largest step inside.
    for (const Picture& p : manifest()) {
        double largest = 1;
        for (int x = 1; x < p.width; ++x) {
            largest = std::max(largest, p.columnsDiffer(x - 1, x));
        }
        if (p.repeat != "once") {
            EXPECT_LE(p.columnsDiffer(p.width - 1, 0), 1.1 * largest) << p.file;
        }
        largest = 1;
        for (int y = 1; y < p.height; ++y) {
            largest = std::max(largest, p.rowsDiffer(y - 1, y));
        }
        if (p.repeat == "tiles") {
            EXPECT_LE(p.rowsDiffer(p.height - 1, 0), 1.1 * largest) << p.file;
        }
    }
}

// Lights add their colour to the light map, and shadows are cut with the last texel's alpha.
TEST(PicturesTest, ALightEndsInBlackAndIsOpaque) {
    for (const Picture& p : manifest()) {
        if (!p.file.starts_with("light")) {
            continue;
        }
        for (int n = 0; n < p.width; ++n) {
            for (int i = 0; i < 3; ++i) {
                EXPECT_EQ(p.channel(n, 0, i) + p.channel(n, p.height - 1, i), 0) << p.file;
                EXPECT_EQ(p.channel(0, n, i) + p.channel(p.width - 1, n, i), 0) << p.file;
            }
            EXPECT_EQ(p.channel(n, n, 3), 255) << p.file;
        }
    }
}
