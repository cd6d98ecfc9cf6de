#include "Ratio.h"

#include "Files.h"
#include "ProcessValues.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/GraphicsModule.h"
#include "soundModule/SoundManager.h"

#include <array>
#include <map>
#include <string>
#include <vector>

// Tracked sounds as a level asks for them in every step, against the walk of the channels and the
// look-up of the name that each of them needs.

namespace {

constexpr std::size_t sounds = 300;

struct Channel {
    SoundOwner owner = 0;
    int sound = 0;
};

void trackedSounds(benchmark::State& state) {
    const std::vector<std::string> names = listFiles(dataPrefix + "sound/*.wav");
    std::map<std::string, int> numbers;
    for (const std::string& name : names) {
        numbers.emplace(name, static_cast<int>(numbers.size()));
    }
    std::array<Channel, Mixer::channelCount> channels;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        channels[i] = {i + 2, static_cast<int>(i % names.size())};
    }
    const btVector3 place(graphicsModule().camera->getX() + 300.0F, 0.0F, 0.0F);
    compare(
        state, 500, 1.5,
        [&] {
            for (std::size_t i = 0; i < sounds; ++i) {
                soundManager().play(names[i % names.size()], place, i + 2, 128, false);
            }
            soundManager().update();
        },
        [&] {
            for (std::size_t i = 0; i < sounds; ++i) {
                const int sound = numbers.find(names[i % names.size()])->second;
                for (Channel& channel : channels) {
                    benchmark::DoNotOptimize(channel);
                    if (channel.owner == i + 2 && channel.sound == sound) {
                        break;
                    }
                }
            }
        });
    for (std::size_t i = 0; i < sounds; ++i) {
        soundManager().stopOwner(i + 2);
    }
}

} // namespace

BENCHMARK(trackedSounds)->Iterations(1);
