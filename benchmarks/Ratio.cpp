#include "Ratio.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace {

constexpr std::size_t rounds = 9;
constexpr int turnsInRound = 10;
constexpr int callsInTurn = 10; // where each turn is prepared

/// Processor time of all threads: what else the machine does counts on neither side.
double secondsOf(int calls, const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    for (int i = 0; i < calls; ++i) {
        work();
    }
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// What the calls of a round took.
struct Seconds {
    double ours = 0.0;
    double bare = 0.0;
};

/// A round: both sides by turns.
Seconds runTurns(int calls, int callsNow, const std::function<void(int)>& prepare,
                 const std::function<void()>& ours, const std::function<void()>& bare) {
    Seconds seconds;
    for (int turn = 0; turn * callsNow < calls; ++turn) {
        prepare(turn);
        seconds.ours += secondsOf(callsNow, ours);
        seconds.bare += secondsOf(callsNow, bare);
    }
    return seconds;
}

/// Runs the rounds and reports their medians.
void runRounds(benchmark::State& state, int calls, double limit,
               const std::function<Seconds()>& round) {
    std::array<double, rounds> ratios{};
    std::array<double, rounds> times{};
    for ([[maybe_unused]] auto turn : state) {
        for (std::size_t i = 0; i < rounds; ++i) {
            const Seconds seconds = round();
            times[i] = seconds.ours;
            ratios[i] = seconds.ours / seconds.bare;
        }
    }
    std::sort(ratios.begin(), ratios.end());
    std::sort(times.begin(), times.end());
    state.counters["ratio"] = ratios[rounds / 2];
    state.counters["limit"] = limit;
    state.counters["ms"] = times[rounds / 2] * 1000.0 / calls;
    if (ratios[rounds / 2] > limit) {
        state.SetLabel("OVER THE LIMIT");
    }
}

} // namespace

void compare(benchmark::State& state, int calls, double limit, const std::function<void()>& ours,
             const std::function<void()>& bare) {
    ours();
    bare();
    const int callsNow = std::max(calls / turnsInRound, 1);
    runRounds(state, calls, limit, [&] {
        return runTurns(
            calls, callsNow, [](int /*turn*/) {}, ours, bare);
    });
}

void compareInTurn(benchmark::State& state, int calls, double limit,
                   const std::function<void(int)>& prepare, const std::function<void()>& ours,
                   const std::function<void()>& bare) {
    runRounds(state, calls, limit,
              [&] { return runTurns(calls, callsInTurn, prepare, ours, bare); });
}

void compareBeyond(benchmark::State& state, int calls, double limit,
                   const std::function<void(bool)>& put, const std::function<void()>& ours,
                   const std::function<void()>& bare) {
    const auto with = [&](bool there) {
        put(there);
        ours();
        return secondsOf(calls, ours);
    };
    runRounds(state, calls, limit, [&] {
        return Seconds{with(true) - with(false), secondsOf(calls, bare)};
    });
}
