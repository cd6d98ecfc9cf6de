#include "Engine.h"

#include <benchmark/benchmark.h>

#include <iostream>
#include <string>

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    try {
        const Engine engine;
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::string& failure) {
        std::cerr << failure << '\n';
        return 1;
    }
    benchmark::Shutdown();
    return 0;
}
