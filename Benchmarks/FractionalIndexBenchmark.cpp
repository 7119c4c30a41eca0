// Fractional order keys: a key between two neighbours, a key after the last one, a run of keys
// between two neighbours, and long chains of insertions next to one neighbour, where keys grow.
// scripts/bench times the same operations of the npm package fractional-indexing beside these
// (Benchmarks/node/fractional-indexing.mjs); the inputs are made the same way on both sides.

#include "Common/FractionalIndex.h"
#include "RunOverBatch.h"

#include <benchmark/benchmark.h>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace benchmarks
{
namespace
{

using common::CFractionalIndex;

constexpr std::size_t listLength = 1025;
constexpr std::size_t keysPerRun = 100;
constexpr std::size_t runsPerBatch = 64;

// The keys of a list whose items were appended one after another, as a list grows in use.
const std::vector<CFractionalIndex>& listKeys()
{
    static const std::vector<CFractionalIndex> keys = CFractionalIndex::generate(
        CFractionalIndex::defaultKey(), CFractionalIndex::defaultKey(), listLength);
    return keys;
}

// Each pair of neighbours of the list, by the index of the lower one.
std::vector<std::size_t> lowerNeighbours(std::size_t count)
{
    std::vector<std::size_t> indices(count);
    for (std::size_t i = 0; i < count; ++i)
        indices[i] = i;
    return indices;
}

void between(benchmark::State& state)
{
    const std::vector<CFractionalIndex>& keys = listKeys();
    runOverBatch(state, lowerNeighbours(keys.size() - 1),
                 [&keys](std::size_t i) { return CFractionalIndex::between(keys[i], keys[i + 1]); });
}

void after(benchmark::State& state)
{
    const std::vector<CFractionalIndex>& keys = listKeys();
    runOverBatch(state, lowerNeighbours(keys.size()),
                 [&keys](std::size_t i) { return CFractionalIndex::after(keys[i]); });
}

// One item is one run of keysPerRun keys.
void nKeys(benchmark::State& state)
{
    const std::vector<CFractionalIndex>& keys = listKeys();
    runOverBatch(state, lowerNeighbours(runsPerBatch),
                 [&keys](std::size_t i)
                 { return CFractionalIndex::generate(keys[i], keys[i + 1], keysPerRun); });
}

enum class Chain
{
    // Each new item goes right after the same item: its key lies just above that item's key, below
    // the key made before it.
    justAbove,
    // Each new item goes right before the same item: its key lies just below that item's key, above
    // the key made before it.
    justBelow
};

// `insertions` new keys next to one fixed neighbour, each between that neighbour and the key made
// before it. One item is one insertion; the counters give the length of the last key, as bytes and
// as the characters of its stored hexadecimal text.
void chain(benchmark::State& state, Chain direction)
{
    const auto insertions = static_cast<std::size_t>(state.range(0));
    const std::vector<CFractionalIndex>& keys = listKeys();
    const CFractionalIndex& lower = keys[0];
    const CFractionalIndex& upper = keys[1];
    std::size_t lastKeyBytes = 0;
    for (auto _ : state)
    {
        CFractionalIndex previous = direction == Chain::justAbove ? upper : lower;
        try
        {
            for (std::size_t made = 0; made < insertions; ++made)
                previous = direction == Chain::justAbove ? CFractionalIndex::between(lower, previous)
                                                         : CFractionalIndex::between(previous, upper);
        }
        catch (const std::exception& failure)
        {
            state.SkipWithError(failure.what());
            break;
        }
        lastKeyBytes = previous.bytes().size();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(insertions));
    state.counters["keyBytes"] = static_cast<double>(lastKeyBytes);
    state.counters["keyChars"] = static_cast<double>(2 * lastKeyBytes);
}

BENCHMARK(between)->Name("fractional/between/common");
BENCHMARK(after)->Name("fractional/after/common");
BENCHMARK(nKeys)->Name("fractional/n-keys/common");
// The longest chains run once: they show whether the keys hold out and how long they grow, and
// one run takes seconds.
void registerChains(Chain direction, const char* name)
{
    const auto run = [direction](benchmark::State& state)
    {
        chain(state, direction);
    };
    benchmark::RegisterBenchmark(name, run)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(name, run)->Arg(100'000)->Repetitions(1)->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool registered = []
{
    registerChains(Chain::justAbove, "fractional/just-above/common");
    registerChains(Chain::justBelow, "fractional/just-below/common");
    return true;
}();

} // namespace
} // namespace benchmarks
