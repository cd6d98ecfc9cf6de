#include "Ratio.h"

#include "graphicsModule/TextureStore.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

// Chains that run, against as many virtual calls; a script that is read, against its splitting.

namespace {

constexpr int links = 2000;
constexpr int linksOfAChain = 8;

/// A chain whose clocks all stand in mid-delay or wait behind one that does.
constexpr const char* chainScript =
    "DELAY 1000000 TIP 402 DELAY 200 REVERSE LIFT1 DELAY 200 TIP -1 SOUND close.wav DELAY 90";

/// Objects that stand still, each with a chain that can be taken off and put on again.
class Machines {
public:
    Machines() {
        SceneObjectDescription look{};
        look.physical = true;
        look.texture = textureStore().find("stone.tga");
        for (int i = 0; i < links / linksOfAChain; ++i) {
            const float x = static_cast<float>(i) * 50.0F;
            machines.push_back(new SceneObject(makeBoxParts(look, x, 0.0F, 20.0F, 20.0F)));
            sceneManager().addSceneObject(machines.back());
            machines.back()->addAddition(parseScript(chainScript));
        }
    }
    ~Machines() { sceneManager().clearScene(); }
    Machines(const Machines&) = delete;
    Machines& operator=(const Machines&) = delete;

    void putChains(bool on) {
        if (std::exchange(chained, on) == on) {
            return;
        }
        takenOff.resize(machines.size());
        for (std::size_t i = 0; i < machines.size(); ++i) {
            std::swap(machines[i]->additions, takenOff[i]);
        }
    }

private:
    std::vector<SceneObject*> machines; // the scene's
    std::vector<std::vector<So_Addition*>> takenOff;
    bool chained = true;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual void advance() { ++steps; }

private:
    int steps = 0;
};
class LateClock : public Clock {
public:
    void advance() override { benchmark::DoNotOptimize(this); }
};

void chainsOnObjects(benchmark::State& state) {
    Machines machines;
    std::vector<std::unique_ptr<Clock>> clocks;
    for (int i = 0; i < links; ++i) {
        clocks.push_back(i % 2 == 0 ? std::make_unique<Clock>() : std::make_unique<LateClock>());
    }
    compareBeyond(
        state, 3000, 3.0, [&](bool chained) { machines.putChains(chained); },
        [] { physicsModule().update(); },
        [&clocks] {
            for (const auto& clock : clocks) {
                clock->advance();
            }
        });
    machines.putChains(true);
}

/// As long as the longest of the game, the intro of chapter 1.
std::string longestScript() {
    std::string script = "LOCK FADENORMAL DELAY 300 CH1T1";
    for (int text = 2; text <= 15; ++text) {
        script += " DELAY 10 DELAYORKEY 190 CH1T" + std::to_string(text);
    }
    return script + " DELAY 100 FADEALLTOWHITE DELAY 200 TIP -1 INEWGAME1 REMOVESCRIPT";
}

/// As many commands as the game has.
void enterCommands() {
    for (int i = 0; i < 344; ++i) {
        callbackTable().emplace("CH" + std::to_string(i % 15) + "T" + std::to_string(i), nullptr);
    }
}

void parseLongestScript(benchmark::State& state) {
    enterCommands();
    const std::string script = longestScript();
    compare(
        state, 20'000, 5.0,
        [&script] {
            const std::unique_ptr<CallbackAdd> chain(parseScript(script));
            benchmark::DoNotOptimize(chain->getNext());
        },
        [&script] {
            std::vector<std::string> words;
            for (std::size_t at = 0; at < script.size();) {
                const std::size_t end = std::min(script.find(' ', at), script.size());
                words.push_back(script.substr(at, end - at));
                at = end + 1;
            }
            benchmark::DoNotOptimize(words.data());
        });
}

} // namespace

BENCHMARK(chainsOnObjects)->Iterations(1);
BENCHMARK(parseLongestScript)->Iterations(1);
