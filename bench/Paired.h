#pragma once
#include <benchmark/benchmark.h>
#include <chrono>

// Times a piece of work and its reference in turns, so that a noisy machine disturbs both alike. The row's time is the
// work's own; beside it stand the reference's time and the ratio of the two.
namespace brimshade::bench {

template <typename Work> double secondsOf(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The benchmark must use UseManualTime(). Both functions are called with the number of the turn.
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
