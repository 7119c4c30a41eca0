// synthetic-project: writes the synthetic project that the benchmarks measure, so that anyone can
// open a project of realistic size in either host program. The same count and seed always make the
// same file, identifiers included.

#include "AecModel/Project.h"
#include "AecModel/ProjectFile.h"
#include "SyntheticProject/SyntheticProjectBuilder.h"

#include <charconv>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>

namespace
{

constexpr const char* usage = "Usage: synthetic-project ENTITIES FILE [SEED]\n"
                              "Writes a project of ENTITIES entities (names, topics, the explorer's\n"
                              "default state) to FILE; the same ENTITIES and SEED make the same file.";

// The benchmarks' own seed, so that a file made here is the project they measure.
constexpr std::uint32_t defaultSeed = 2024;

template <typename Number>
std::optional<Number> parseNumber(std::string_view text)
{
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4)
    {
        std::cerr << usage << '\n';
        return 2;
    }
    const std::optional<std::size_t> count = parseNumber<std::size_t>(argv[1]);
    const std::optional<std::uint32_t> seed =
        argc == 4 ? parseNumber<std::uint32_t>(argv[3]) : std::optional<std::uint32_t>(defaultSeed);
    if (!count || *count == 0 || !seed)
    {
        std::cerr << "error: ENTITIES and SEED are positive whole numbers\n" << usage << '\n';
        return 2;
    }
    try
    {
        const std::string_view file(argv[2]);
        const auto project = benchmarks::CSyntheticProjectBuilder(*seed).build(*count);
        aec::model::CProjectFile::save(*project,
                                       std::filesystem::path(std::u8string(file.begin(), file.end())));
        std::cout << "wrote " << *count << " entities to " << file << '\n';
        return 0;
    }
    catch (const std::exception& failure)
    {
        std::cerr << "error: " << failure.what() << '\n';
    }
    return 1;
}
