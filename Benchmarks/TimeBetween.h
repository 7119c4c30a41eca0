#pragma once

#include <benchmark/benchmark.h>

namespace benchmarks
{

// Times `act` alone in each iteration; `prepare` before it and `restore` after it run with the
// timer paused, so that every iteration starts from the same state. Pausing costs microseconds,
// which the milliseconds of the operations measured this way make up for. Counts one item per
// iteration.
template <class Prepare, class Act, class Restore>
void timeBetween(benchmark::State& state, Prepare prepare, Act act, Restore restore)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        prepare();
        state.ResumeTiming();
        act();
        state.PauseTiming();
        restore();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations());
}

inline void nothing() {}

} // namespace benchmarks
