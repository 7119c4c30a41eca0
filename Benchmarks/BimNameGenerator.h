#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace benchmarks
{

// Makes names as they occur in building projects: sheets ("A-102 - Level 3 Floor Plan"), levels,
// doors, windows, walls, materials, reinforcement and schedules, with numbers of one to four
// digits (some with leading zeros), dimensions, mixed letter case and a share of non-ASCII text
// (accents, ×, Ø, Greek and Cyrillic words). The same seed always makes the same names.
class CBimNameGenerator
{
public:
    explicit CBimNameGenerator(std::uint32_t seed);

    // One name; names repeat now and then, as in a real project.
    std::wstring next();

    // `count` different names, in the order they were first made. Throws std::runtime_error when
    // the templates cannot yield that many.
    std::vector<std::wstring> distinct(std::size_t count);

    // `count` names drawn at random, with repetition, from `pool`.
    std::vector<std::wstring> drawFrom(const std::vector<std::wstring>& pool, std::size_t count);

private:
    std::size_t below(std::size_t bound);
    const wchar_t* pick(const std::vector<const wchar_t*>& choices);
    std::wstring number(std::size_t maxDigits);
    std::wstring sheetName();
    std::wstring levelName();
    std::wstring doorOrWindowName();
    std::wstring wallName();
    std::wstring materialName();
    std::wstring reinforcementName();
    std::wstring scheduleName();
    void varyCase(std::wstring& name);

    std::mt19937 engine_;
};

} // namespace benchmarks
