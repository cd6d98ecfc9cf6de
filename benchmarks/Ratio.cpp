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

} // namespace

void compare(benchmark::State& state, int calls, double limit, const std::function<void()>& ours,
             const std::function<void()>& bare) {
    std::array<double, rounds> ratios{};
    std::array<double, rounds> times{};
    for ([[maybe_unused]] auto turn : state) {
        secondsOf(1, ours);
        secondsOf(1, bare);
        for (std::size_t i = 0; i < rounds; ++i) {
            times[i] = secondsOf(calls, ours);
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
