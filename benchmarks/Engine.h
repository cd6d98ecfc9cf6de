#pragma once

/// The engine as the program has it, window and all, without a game: what the benchmarks run on.
class Engine {
public:
    Engine();
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    static inline double secondsToStart = 0.0; ///< What construction took.
};
