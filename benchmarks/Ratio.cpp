#include "Ratio.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace {

constexpr std::size_t rounds = 5;

double secondsOf(int calls, const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < calls; ++i) {
        work();
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs the rounds and reports their medians. `time` gives the seconds that `calls` of ours took.
void runRounds(benchmark::State& state, int calls, double limit,
               const std::function<double()>& time, const std::function<void()>& bare) {
    std::array<double, rounds> ratios{};
    std::array<double, rounds> times{};
    for ([[maybe_unused]] auto turn : state) {
        for (std::size_t i = 0; i < rounds; ++i) {
            times[i] = time();
            ratios[i] = times[i] / secondsOf(calls, bare);
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
    runRounds(
        state, calls, limit, [&] { return secondsOf(calls, ours); }, bare);
}

void compareBeyond(benchmark::State& state, int calls, double limit,
                   const std::function<void(bool)>& put, const std::function<void()>& ours,
                   const std::function<void()>& bare) {
    const auto with = [&](bool there) {
        put(there);
        ours();
        return secondsOf(calls, ours);
    };
    runRounds(
        state, calls, limit, [&] { return with(true) - with(false); }, bare);
}
