// UUIDs of libCommon against libuuid and Boost.Uuid: parsing the text form, printing it to a
// std::string, hashing and ordering. All three peers work on the same random identifiers.

#include "Common/UUID.h"
#include "RunOverBatch.h"

#include <benchmark/benchmark.h>
#include <boost/functional/hash.hpp>
#include <boost/uuid/string_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <uuid/uuid.h>
#include <vector>

namespace benchmarks
{
namespace
{

constexpr std::size_t batchSize = 1024;

// libuuid's type is an array, which a vector cannot hold.
struct LibUuid
{
    uuid_t bytes;
};

const std::vector<common::UUID>& uuids()
{
    static const std::vector<common::UUID> made = []
    {
        std::mt19937 engine(42);
        std::vector<common::UUID> result;
        for (std::size_t i = 0; i < batchSize; ++i)
        {
            common::UUID::Bytes bytes{};
            for (std::uint8_t& byte : bytes)
                byte = static_cast<std::uint8_t>(engine());
            result.push_back(common::UUID::version4FromRandomBytes(bytes));
        }
        return result;
    }();
    return made;
}

const std::vector<std::string>& texts()
{
    static const std::vector<std::string> made = []
    {
        std::vector<std::string> result;
        for (const common::UUID& uuid : uuids())
            result.push_back(uuid.toString());
        return result;
    }();
    return made;
}

// The peers' values are parsed from the same texts, so each peer holds the same identifiers in its
// own layout.
const std::vector<LibUuid>& libUuids()
{
    static const std::vector<LibUuid> made = []
    {
        std::vector<LibUuid> result(batchSize);
        for (std::size_t i = 0; i < batchSize; ++i)
            uuid_parse(texts()[i].c_str(), result[i].bytes);
        return result;
    }();
    return made;
}

const std::vector<boost::uuids::uuid>& boostUuids()
{
    static const std::vector<boost::uuids::uuid> made = []
    {
        std::vector<boost::uuids::uuid> result;
        for (const std::string& text : texts())
            result.push_back(boost::uuids::string_generator()(text));
        return result;
    }();
    return made;
}

// Ordering compares neighbours in the batch: each input is the index of the left operand.
const std::vector<std::size_t>& indices()
{
    static const std::vector<std::size_t> made = []
    {
        std::vector<std::size_t> result(batchSize);
        for (std::size_t i = 0; i < batchSize; ++i)
            result[i] = i;
        return result;
    }();
    return made;
}

std::size_t nextIndex(std::size_t index)
{
    return (index + 1) % batchSize;
}

void parseCommon(benchmark::State& state)
{
    runOverBatch(state, texts(), [](const std::string& text) { return common::UUID::parse(text); });
}

void parseLibUuid(benchmark::State& state)
{
    runOverBatch(state, texts(),
                 [](const std::string& text)
                 {
                     LibUuid uuid;
                     uuid_parse(text.c_str(), uuid.bytes);
                     return uuid;
                 });
}

void parseBoost(benchmark::State& state)
{
    runOverBatch(state, texts(),
                 [](const std::string& text) { return boost::uuids::string_generator()(text); });
}

void printCommon(benchmark::State& state)
{
    runOverBatch(state, uuids(), [](const common::UUID& uuid) { return uuid.toString(); });
}

// libuuid prints into a buffer; the copy into a std::string is what a caller of it needs to do.
void printLibUuid(benchmark::State& state)
{
    runOverBatch(state, libUuids(),
                 [](const LibUuid& uuid)
                 {
                     char text[37];
                     uuid_unparse_lower(uuid.bytes, text);
                     return std::string(text, 36);
                 });
}

void printBoost(benchmark::State& state)
{
    runOverBatch(state, boostUuids(),
                 [](const boost::uuids::uuid& uuid) { return boost::uuids::to_string(uuid); });
}

void hashCommon(benchmark::State& state)
{
    runOverBatch(state, uuids(), std::hash<common::UUID>());
}

void hashBoost(benchmark::State& state)
{
    runOverBatch(state, boostUuids(), boost::hash<boost::uuids::uuid>());
}

void lessCommon(benchmark::State& state)
{
    const std::vector<common::UUID>& values = uuids();
    runOverBatch(state, indices(), [&values](std::size_t i) { return values[i] < values[nextIndex(i)]; });
}

void lessLibUuid(benchmark::State& state)
{
    const std::vector<LibUuid>& values = libUuids();
    runOverBatch(state, indices(),
                 [&values](std::size_t i)
                 { return uuid_compare(values[i].bytes, values[nextIndex(i)].bytes) < 0; });
}

void lessBoost(benchmark::State& state)
{
    const std::vector<boost::uuids::uuid>& values = boostUuids();
    runOverBatch(state, indices(), [&values](std::size_t i) { return values[i] < values[nextIndex(i)]; });
}

BENCHMARK(parseCommon)->Name("uuid/parse/common");
BENCHMARK(parseLibUuid)->Name("uuid/parse/libuuid");
BENCHMARK(parseBoost)->Name("uuid/parse/boost");
BENCHMARK(printCommon)->Name("uuid/print/common");
BENCHMARK(printLibUuid)->Name("uuid/print/libuuid");
BENCHMARK(printBoost)->Name("uuid/print/boost");
BENCHMARK(hashCommon)->Name("uuid/hash/common");
BENCHMARK(hashBoost)->Name("uuid/hash/boost");
BENCHMARK(lessCommon)->Name("uuid/less/common");
BENCHMARK(lessLibUuid)->Name("uuid/less/libuuid");
BENCHMARK(lessBoost)->Name("uuid/less/boost");

} // namespace
} // namespace benchmarks
