#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>
#include <vector>

namespace benchmarks
{

// Applies `operation` to every input once per iteration and counts one item per input, so that the
// reported rate is operations per second whatever the batch size. A batch of varied inputs keeps
// branch predictors and caches from learning a single input; each result is kept alive so that the
// compiler cannot drop the work.
template <class Input, class Operation>
void runOverBatch(benchmark::State& state, const std::vector<Input>& inputs, Operation operation)
{
    for (auto _ : state)
        for (const Input& input : inputs)
        {
            auto result = operation(input);
            benchmark::DoNotOptimize(result);
        }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(inputs.size()));
}

} // namespace benchmarks
