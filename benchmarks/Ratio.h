#pragma once

#include <benchmark/benchmark.h>

#include <functional>

/// Runs our work and the bare thing alternately, nine rounds in one process, and reports the median
/// of the rounds' ratios, in processor time, as the counter "ratio", beside the most that we allow
/// ourselves as "limit". Both callables do the same amount of work a call; `calls` of each, in ten
/// turns, since a machine may change its pace meanwhile, make a round.
void compare(benchmark::State& state, int calls, double limit, const std::function<void()>& ours,
             const std::function<void()>& bare);

/// The same in turns of ten calls, each behind an untimed preparation that is given the number of
/// the turn in its round, from 0: for two sides that drift apart unless they begin alike now and
/// then.
void compareInTurn(benchmark::State& state, int calls, double limit,
                   const std::function<void(int)>& prepare, const std::function<void()>& ours,
                   const std::function<void()>& bare);

/// The same for what our work costs more with something than without it: `put` puts it there or
/// takes it away, untimed.
void compareBeyond(benchmark::State& state, int calls, double limit,
                   const std::function<void(bool)>& put, const std::function<void()>& ours,
                   const std::function<void()>& bare);
