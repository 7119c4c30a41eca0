// The natural comparison of names against what else could order them: ICU's collator with numeric
// collation (the library answer), wcscasecmp (case-blind but not natural: a floor for what ignoring
// case costs) and plain binary comparison of the code units (the floor of all comparisons).

#include "BimNameGenerator.h"
#include "Common/LogicalCompare.h"
#include "IcuNumericCollator.h"
#include "RunOverBatch.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <clocale>
#include <cwchar>
#include <fmt/format.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace benchmarks
{
namespace
{

constexpr std::size_t pairCount = 4096;
constexpr std::size_t bucketedNameCount = 1'000'000;

enum class PairKind
{
    // Neighbours in sorted order: long shared prefixes ("Level 03 - ..."), the comparisons a sort
    // or a map look-up makes last.
    neighbours,
    // Two names picked at random: most differ early, the comparisons a sort makes first.
    random
};

template <class Text>
struct NamePair
{
    Text left;
    Text right;
};

using WidePair = NamePair<std::wstring>;
using Utf16Pair = NamePair<std::u16string>;

std::vector<WidePair> makeWidePairs(PairKind kind)
{
    CBimNameGenerator generator(20240601);
    std::vector<std::wstring> names = generator.distinct(pairCount + 1);
    std::vector<WidePair> pairs;
    pairs.reserve(pairCount);
    if (kind == PairKind::neighbours)
    {
        std::sort(names.begin(), names.end(), common::LogicalLess());
        for (std::size_t i = 0; i < pairCount; ++i)
            pairs.push_back({names[i], names[i + 1]});
    }
    else
    {
        std::mt19937 engine(7);
        std::uniform_int_distribution<std::size_t> anyName(0, names.size() - 1);
        for (std::size_t i = 0; i < pairCount; ++i)
            pairs.push_back({names[anyName(engine)], names[anyName(engine)]});
    }
    return pairs;
}

const std::vector<WidePair>& widePairs(PairKind kind)
{
    static const std::vector<WidePair> neighbours = makeWidePairs(PairKind::neighbours);
    static const std::vector<WidePair> random = makeWidePairs(PairKind::random);
    return kind == PairKind::neighbours ? neighbours : random;
}

std::vector<Utf16Pair> toUtf16(const std::vector<WidePair>& pairs)
{
    std::vector<Utf16Pair> converted;
    converted.reserve(pairs.size());
    for (const WidePair& pair : pairs)
        converted.push_back(
            {CIcuNumericCollator::toUtf16(pair.left), CIcuNumericCollator::toUtf16(pair.right)});
    return converted;
}

const std::vector<Utf16Pair>& utf16Pairs(PairKind kind)
{
    static const std::vector<Utf16Pair> neighbours = toUtf16(widePairs(PairKind::neighbours));
    static const std::vector<Utf16Pair> random = toUtf16(widePairs(PairKind::random));
    return kind == PairKind::neighbours ? neighbours : random;
}

const CIcuNumericCollator& collator()
{
    static const CIcuNumericCollator instance;
    return instance;
}

// A million names of a large project, drawn with repetition from `distinctCount` different ones:
// what a grouping by a property sees.
const std::vector<std::wstring>& namesToBucket(std::size_t distinctCount)
{
    static std::map<std::size_t, std::vector<std::wstring>> byDistinctCount;
    auto [names, made] = byDistinctCount.try_emplace(distinctCount);
    if (made)
    {
        CBimNameGenerator generator(static_cast<std::uint32_t>(distinctCount));
        names->second = generator.drawFrom(generator.distinct(distinctCount), bucketedNameCount);
    }
    return names->second;
}

const std::vector<std::u16string>& utf16NamesToBucket(std::size_t distinctCount)
{
    static std::map<std::size_t, std::vector<std::u16string>> byDistinctCount;
    auto [names, made] = byDistinctCount.try_emplace(distinctCount);
    if (made)
        for (const std::wstring& name : namesToBucket(distinctCount))
            names->second.push_back(CIcuNumericCollator::toUtf16(name));
    return names->second;
}

// Counts the names per bucket in a fresh map; one item is one whole bucketing. Tearing the map
// down is the same work under every comparator and is left out of the time.
template <class Key, class Less>
void bucketNames(benchmark::State& state, const std::vector<Key>& names, Less less)
{
    std::size_t bucketCount = 0;
    for (auto _ : state)
    {
        std::map<Key, std::size_t, Less> buckets(less);
        for (const Key& name : names)
            ++buckets.try_emplace(name).first->second;
        bucketCount = buckets.size();
        state.PauseTiming();
        buckets.clear();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations());
    // Names that differ only in case share a bucket in natural order and under ICU, not in binary.
    state.counters["buckets"] = static_cast<double>(bucketCount);
}

void registerComparisons(PairKind kind, const char* kindName)
{
    const auto name = [kindName](const char* peer)
    {
        return fmt::format("compare/{}/{}", kindName, peer);
    };
    benchmark::RegisterBenchmark(name("logical").c_str(),
                                 [kind](benchmark::State& state)
                                 {
                                     runOverBatch(state, widePairs(kind),
                                                  [](const WidePair& pair)
                                                  { return common::compareLogical(pair.left, pair.right); });
                                 });
    benchmark::RegisterBenchmark(name("icu").c_str(),
                                 [kind](benchmark::State& state)
                                 {
                                     const CIcuNumericCollator& icu = collator();
                                     runOverBatch(state, utf16Pairs(kind),
                                                  [&icu](const Utf16Pair& pair)
                                                  { return icu.compare(pair.left, pair.right); });
                                 });
    benchmark::RegisterBenchmark(name("wcscasecmp").c_str(),
                                 [kind](benchmark::State& state)
                                 {
                                     runOverBatch(
                                         state, widePairs(kind),
                                         [](const WidePair& pair)
                                         { return ::wcscasecmp(pair.left.c_str(), pair.right.c_str()); });
                                 });
    benchmark::RegisterBenchmark(name("binary").c_str(),
                                 [kind](benchmark::State& state)
                                 {
                                     runOverBatch(state, widePairs(kind),
                                                  [](const WidePair& pair)
                                                  { return pair.left.compare(pair.right); });
                                 });
}

void registerBucketing(std::size_t distinctCount)
{
    const auto name = [distinctCount](const char* peer)
    {
        return fmt::format("bucket/{}/{}", distinctCount, peer);
    };
    benchmark::RegisterBenchmark(name("logical").c_str(), [distinctCount](benchmark::State& state)
                                 { bucketNames(state, namesToBucket(distinctCount), common::LogicalLess()); })
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(
        name("icu").c_str(), [distinctCount](benchmark::State& state)
        { bucketNames(state, utf16NamesToBucket(distinctCount), IcuNumericLess{&collator()}); })
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(
        name("binary").c_str(), [distinctCount](benchmark::State& state)
        { bucketNames(state, namesToBucket(distinctCount), std::less<std::wstring>()); })
        ->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool registered = []
{
    // wcscasecmp folds case by the locale; the C locale folds ASCII only.
    std::setlocale(LC_ALL, "C.UTF-8");
    registerComparisons(PairKind::neighbours, "neighbours");
    registerComparisons(PairKind::random, "random");
    registerBucketing(1'000);
    registerBucketing(100'000);
    return true;
}();

} // namespace
} // namespace benchmarks
