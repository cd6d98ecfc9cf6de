#include "Ratio.h"

#include "Files.h"
#include "ProcessValues.h"
#include "TextStream.h"
#include "graphicsModule/TextureStore.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/SceneObjectDescription.h"

#include <snappy.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// Maps and saves as text: reading against std::from_chars, printing against std::to_chars and
// snappy.

namespace {

constexpr std::size_t mapBytes = 5'000'000;

/// A scene whose text has about five megabytes: loose discs of many vertices and boxes.
void fillScene() {
    SceneObjectDescription look{};
    look.physical = true;
    look.friction = 0.5F;
    look.mass = 1.5F;
    look.texture = textureStore().find("stone.tga");
    look.parallax = 1.0F;
    look.r = look.g = look.b = 0.3217F;
    look.a = 1.0F;
    const int objects = 6000;
    for (int i = 0; i < objects; ++i) {
        const float x = static_cast<float>(i % 100) * 61.237F;
        const float y = static_cast<float>(i / 100) * 57.713F;
        sceneManager().addSceneObject(
            new SceneObject(i % 2 == 0 ? makeSphereParts(look, x, y, 17.31F)
                                       : makeBoxParts(look, x, y, 11.7F, 13.9F)));
    }
}

std::string sceneText() {
    TextWriter writer;
    writeScene(writer);
    return writer.takeText();
}

std::string mapText() {
    fillScene();
    const std::string once = sceneText();
    sceneManager().clearScene();
    std::string text;
    while (text.size() < mapBytes) {
        text += once;
    }
    return text;
}

bool isNumber(std::string_view token) {
    return (token[0] >= '0' && token[0] <= '9') || token[0] == '-';
}

/// For each token whether it is a word.
std::vector<bool> wordsOf(const std::string& text) {
    std::vector<bool> words;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = text.find(' ', at);
        if (end > at) {
            words.push_back(!isNumber(std::string_view(text).substr(at, end - at)));
        }
        at = end == std::string::npos ? text.size() : end + 1;
    }
    return words;
}

float bareTokens(const std::string& text) {
    float sum = 0.0F;
    const char* at = text.data();
    const char* end = at + text.size();
    while (at < end) {
        if (*at == ' ') {
            ++at;
            continue;
        }
        float value = 0.0F;
        const auto result = std::from_chars(at, end, value);
        sum += value;
        at = result.ptr == at ? std::find(at, end, ' ') : result.ptr;
    }
    return sum;
}

void readTokens(benchmark::State& state) {
    const std::string text = mapText();
    const std::vector<bool> words = wordsOf(text);
    compare(
        state, 3, 1.2,
        [&] {
            TextReader reader(text);
            float sum = 0.0F;
            std::string word;
            for (const bool isWord : words) {
                if (isWord) {
                    reader >> word;
                } else {
                    sum += reader.read<float>();
                }
            }
            benchmark::DoNotOptimize(sum);
        },
        [&] { benchmark::DoNotOptimize(bareTokens(text)); });
}

/// Reading a scene of that text against reading its numbers.
void compareReading(benchmark::State& state, const std::string& text,
                    const std::function<SceneBundle()>& read) {
    compare(
        state, 3, 3.0,
        [&] {
            const SceneBundle bundle = read();
            benchmark::DoNotOptimize(bundle.objects.data());
        },
        [&] { benchmark::DoNotOptimize(bareTokens(text)); });
}

void readScene(benchmark::State& state) {
    fillScene();
    const std::string text = sceneText();
    sceneManager().clearScene();
    compareReading(state, text, [&] {
        TextReader reader(text);
        return parseScene(reader, false);
    });
}

/// Storing the scene against printing and packing its numbers.
void compareStoring(benchmark::State& state, const std::function<void()>& store) {
    const std::string text = sceneText();
    std::vector<float> values;
    TextReader reader(text);
    for (const bool isWord : wordsOf(text)) {
        if (isWord) {
            reader.read<std::string>();
        } else {
            values.push_back(reader.read<float>());
        }
    }
    compare(state, 3, 1.2, store, [&] {
        std::string printed;
        std::array<char, 32> digits{};
        for (const float value : values) {
            const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                           std::chars_format::general, 6);
            printed.append(digits.data(), end.ptr);
            printed += ' ';
        }
        std::string packed;
        snappy::Compress(printed.data(), printed.size(), &packed);
        benchmark::DoNotOptimize(packed.data());
    });
    sceneManager().clearScene();
}

void printAndPack(benchmark::State& state) {
    fillScene();
    compareStoring(state, [] {
        std::string packed;
        const std::string printed = sceneText();
        compress(printed.data(), printed.size(), packed);
        benchmark::DoNotOptimize(packed.data());
    });
}

std::string largestMap() {
    std::filesystem::directory_entry largest;
    for (const auto& map : std::filesystem::directory_iterator(dataPrefix + "maps")) {
        if (largest.path().empty() || map.file_size() > largest.file_size()) {
            largest = map;
        }
    }
    return largest.path().string();
}

void loadLargestMap(benchmark::State& state) {
    const std::string path = largestMap();
    const std::string packed = readFile(path);
    std::string text;
    uncompress(packed.data(), packed.size(), text);
    compareReading(state, text, [&] { return loadMapFile(path, false); });
}

void saveLargestMap(benchmark::State& state) {
    sceneManager().addScene(loadMapFile(largestMap(), false));
    const std::string path =
        (std::filesystem::temp_directory_path() / "tolmere-bench-save.vkl").string();
    compareStoring(state, [&] { sceneManager().saveMap(path); });
    std::filesystem::remove(path);
}

} // namespace

BENCHMARK(readTokens)->Iterations(1);
BENCHMARK(readScene)->Iterations(1);
BENCHMARK(printAndPack)->Iterations(1);
BENCHMARK(loadLargestMap)->Iterations(1);
BENCHMARK(saveLargestMap)->Iterations(1);
