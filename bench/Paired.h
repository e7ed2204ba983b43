#pragma once
#include <benchmark/benchmark.h>
#include <chrono>

// Times a piece of work and its reference in turns, so that a noisy machine disturbs both alike. The time of the
// row is the work's own; beside it stand the reference's and how many times the reference the work took.
namespace brimshade::bench {

template <typename Work> double secondsOf(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The benchmark says UseManualTime(). Both are called with the number of the turn.
template <typename Work, typename Reference>
void runPaired(benchmark::State &state, const Work &work, const Reference &reference)
{
    double workSeconds = 0;
    double referenceSeconds = 0;
    int turn = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = secondsOf([&] { work(turn); });
        referenceSeconds += secondsOf([&] { reference(turn); });
        workSeconds += seconds;
        state.SetIterationTime(seconds);
        ++turn;
    }
    state.counters["reference_ms"] = referenceSeconds / turn * 1000;
    state.counters["ratio"] = workSeconds / referenceSeconds;
}

} // namespace brimshade::bench
